#pragma once

#include "orbis/factory/classes/NativeClassRecord.hpp"
#include "orbis/factory/detail/objects/NamedClass.hpp"

#include <map>
#include <set>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orbis::factory {

/// The native classes that are published in one virtual machine, by type. The host describes a class only when it is
/// first used; until then only its name, or that of its package, is known here.
class PublishedClasses {
public:
    static PublishedClasses& ofCurrentHvm();

    /// Records the class as published by the module that the record is of. Throws an `Exception` when another module's
    /// is.
    void addNamed(detail::NamedClass& named);

    /// Returns the record of the module that publishes the class, or null.
    detail::NamedClass* findNamed(std::type_info const& type);

    /// Records that a class info of that name exists: the class may be published soon.
    void expect(std::string const& hostName);

    /// Records that the initializer of a package has yet to run, and may publish classes.
    void expectPackage(std::string const& fullName);

    /// Records a class that has been described.
    void add(NativeClassRecord const& native, std::vector<NativeClassRecord> const& superclasses);

    /// Returns the name of the most derived published class of the object bound at `bound`: `known` or a subclass of
    /// it.
    char const* mostDerived(void const* bound, std::type_info const& dynamicType, NativeClassRecord const& known);

private:
    struct Entry {
        NativeClassRecord native;
        std::vector<std::type_index> superclasses;
    };

    bool isA(Entry const& entry, std::type_index ancestor) const;
    void describeExpected();
    char const* best(void const* bound, NativeClassRecord const& known) const;

    /// The same for an object whose own class is not published; caches the result.
    char const* bestOfUnpublished(void const* bound, std::type_info const& dynamicType, NativeClassRecord const& known);

    std::unordered_map<std::type_index, Entry> entries_;
    std::map<std::pair<std::type_index, std::type_index>, char const*> unpublished_; ///< by own class and known class
    std::unordered_map<std::type_index, detail::NamedClass*> named_;
    std::set<std::string> expected_;
    std::set<std::string> expectedPackages_;
};

} // namespace orbis::factory
