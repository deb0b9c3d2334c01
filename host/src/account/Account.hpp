#pragma once

#include "arrays/Array.hpp"
#include "classes/Package.hpp"

#include "velmara/Snapshot.hpp"

#include <map>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace velmara {

/// Sums up what is alive in one virtual machine.
class Account {
public:
    explicit Account(Machine& machine);

    Snapshot snapshot() const;

private:
    void add(Package const& package);
    void add(Object const& object);
    void add(Array const& array, OriginTable::Number origin);

    SnapshotRow& row(std::string_view className, OriginTable::Number origin);

    Machine& machine_;
    std::map<std::pair<std::string_view, OriginTable::Number>, SnapshotRow> rows_;
    std::unordered_set<void const*> payloads_; ///< that are counted
};

} // namespace velmara
