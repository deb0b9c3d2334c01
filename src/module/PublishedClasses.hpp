#pragma once

#include "orbis/factory/classes/NativeClassRecord.hpp"

#include <map>
#include <set>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orbis::factory {

/// The native classes that are published in one virtual machine, by their types. A class becomes known when it is
/// described, which the host asks for late; until then its name waits here, or the name of its package.
class PublishedClasses {
public:
    static PublishedClasses& ofCurrentHvm();

    /// A class info of that name exists: the class may be published soon.
    void expect(std::string const& hostName);

    /// A package of that name has an initializer that waits, which may publish classes.
    void expectPackage(std::string const& fullName);

    /// The class is described now.
    void add(NativeClassRecord const& native, std::vector<NativeClassRecord> const& superclasses);

    /// The name of the most derived class that the object bound at `bound` is of: one that is published, and is
    /// `known` or a subclass of it.
    char const* mostDerived(void const* bound, std::type_info const& dynamicType, NativeClassRecord const& known);

private:
    struct Entry {
        NativeClassRecord native;
        std::vector<std::type_index> superclasses;
    };

    bool isA(Entry const& entry, std::type_index ancestor) const;
    void describeExpected();
    char const* best(void const* bound, NativeClassRecord const& known) const;

    /// The same for an object whose own class is not published, as it was found out last.
    char const* bestOfUnpublished(void const* bound, std::type_info const& dynamicType, NativeClassRecord const& known);

    std::unordered_map<std::type_index, Entry> entries_;
    std::map<std::pair<std::type_index, std::type_index>, char const*> unpublished_; ///< by own and known class
    std::set<std::string> expected_;
    std::set<std::string> expectedPackages_;
};

} // namespace orbis::factory
