#pragma once

#include "values/InternedName.hpp"

#include "orbis/COSInterface.hpp"

#include <cstdint>

namespace velmara {

class Class;
class HvmState;

/// A host object. It lives while it is referred to; it ends (gives up its instance data and becomes invalid) with
/// its last reference, when it is deleted, when its class is unpublished, and when its virtual machine ends. Its
/// storage goes when no handle, strong or weak, and no array is left.
class Object final : public orbis::COSInterface {
public:
    void addExternal() { ++external_; }
    void addInternal() { ++internal_; }

    void removeExternal()
    {
        --external_;
        if (external_ + internal_ == 0)
            lastReferenceGone();
    }

    void removeInternal()
    {
        --internal_;
        if (external_ + internal_ == 0)
            lastReferenceGone();
    }

    Name className() const { return className_; }

    // ... the rest is for the author of the object system: slots of instance data per class of the hierarchy,
    // validity, weak count, virtual machine, list of live objects, the operations of COSInterface.

private:
    void lastReferenceGone();

    std::int32_t external_ = 0;
    std::int32_t internal_ = 0;
    Name className_ = nullptr;
};

} // namespace velmara
