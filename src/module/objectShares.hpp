#pragma once

#include "orbis/factory/detail/objects/NamedClass.hpp"

#include "basic/HostShares.hpp"
#include "basic/KeptObjects.hpp"

#include <memory>

/// Shares in objects of named classes that a host object owned before.
namespace orbis::factory {

/// The deleter of an object that gets shared. It does nothing until the object belongs to it: making the shared pointer
/// may fail.
struct Destroyer {
    void (*destroy)(void*) = nullptr;
    basic::KeptObjects kept = {}; ///< what the object refers to; released after it

    void operator()(void* object);
};

/// The deleter of a share; null for one that native code made.
inline Destroyer* destroyerOf(std::shared_ptr<void> const& share)
{
    return std::get_deleter<Destroyer>(share);
}

/// The shares of the host objects of the current virtual machine.
basic::HostShares& objectShares();

/// Gives the host object a share in its native object, which it owned alone.
std::shared_ptr<void> shareOwned(detail::NamedClass const& named, COSInterface* host, void* object);

/// Makes the host object own its native object alone again, unless there are other shares meanwhile.
void unshare(COSInterface* host) noexcept;

} // namespace orbis::factory
