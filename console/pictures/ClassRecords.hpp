#pragma once

#include "velmara/Hvm.hpp"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmara::console {

/// The records of classes, each asked for once.
class ClassRecords {
public:
    explicit ClassRecords(Hvm& hvm) : hvm_(hvm) {}

    /// Null when no such class is published. Valid as long as this.
    ClassRecord const* find(std::string const& name);

    /// The names of the class and of all its superclasses, each once: itself, then its superclasses with theirs.
    std::vector<std::string> lineage(std::string const& name);

private:
    Hvm& hvm_;
    std::map<std::string, std::unique_ptr<ClassRecord const>> records_;
};

} // namespace velmara::console
