#pragma once

#include "orbis/factory/NativeClassRecord.hpp"

#include <set>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace orbis::factory {

/// The native classes that are published in one virtual machine, by their types. A class becomes known when it is
/// described, which the host asks for late; until then its name waits here.
class PublishedClasses {
public:
    static PublishedClasses& ofCurrentHvm();

    /// A class info of that name exists: the class may be published soon.
    void expect(std::string const& hostName);
    void add(NativeClassRecord const& native, std::vector<NativeClassRecord> const& superclasses);

    /// The name of the most derived class that the object bound at `bound` is of: one that is published, and is
    /// `known` or a subclass of it.
    std::string mostDerived(void const* bound, std::type_info const& dynamicType, NativeClassRecord const& known);

private:
    struct Entry {
        NativeClassRecord native;
        std::vector<std::type_index> superclasses;
    };

    bool isA(Entry const& entry, std::type_index ancestor) const;
    void describeExpected();
    Entry const* best(void const* bound, std::type_index known) const;

    std::unordered_map<std::type_index, Entry> entries_;
    std::set<std::string> expected_;
};

} // namespace orbis::factory
