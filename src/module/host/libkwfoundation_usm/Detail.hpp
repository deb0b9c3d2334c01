#pragma once

#include "orbis_host_export.hpp"

#include <cstdint>
#include <memory>
#include <typeinfo>

/// Storage of each virtual machine, for any module.
namespace foundation::usm {

namespace scope {
/// The scope of one host virtual machine (HVM).
struct Hvm;
} // namespace scope

template <class Scope>
class Detail;

/// Storage of the virtual machine that is current on the calling thread. A value is known by its id and its
/// type; its deleter runs when the virtual machine ends or the entry is erased.
///
/// Threading: each virtual machine has a store of its own, without locks; `getNextID` alone may be called on
/// any thread at any time.
template <>
class ORBIS_HOST_API Detail<scope::Hvm> {
public:
    /// Owns a stored object, with the function that destroys it.
    using Holder = std::unique_ptr<void, void (*)(void*)>;

    /// A fresh id, never given twice in a process. Ask once per kind of stored object and remember it.
    static std::uint64_t getNextID(std::type_info const& type);

    /// The stored holder, or null when there is none or no virtual machine is current.
    static Holder* find(std::uint64_t id, std::type_info const& type);

    /// The holder that is stored already, else `value` after storing it; `value` keeps its object when another
    /// one was stored first. Throws "VELMARA:hvm:noVirtualMachine" when no virtual machine is current.
    static Holder& findOrInsert(std::uint64_t id, std::type_info const& type, Holder&& value);

    /// Stores `value`, in place of what was stored there. Throws like `findOrInsert`.
    static Holder& insert(std::uint64_t id, std::type_info const& type, Holder&& value);

    /// Removes the value (its deleter runs) and tells whether there was one.
    static bool erase(std::uint64_t id, std::type_info const& type);

    /// True while a virtual machine is current on this thread and has not begun to give up its storage.
    static bool isRequiredContextActive();
};

} // namespace foundation::usm
