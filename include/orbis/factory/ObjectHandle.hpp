#pragma once

#include "orbis/factory/H_ck.hpp"
#include "orbis/factory/MarshalingPolicy.hpp"
#include "orbis/factory/detail/NewArray.hpp"
#include "orbis/factory/detail/handles.hpp"

#include "orbis/objectArrays.hpp"

namespace orbis::factory {

/// With which a native object refers to another one that is published: while the handle refers to it, its host object
/// does not end, and where the class info deletes it with that, neither does the native object. A native object without
/// a host object gets one. When the native object goes first the handle holds nothing any more, but still gives its
/// address: who lets it go first resets the handle then, or does not look through it.
///
/// Threading: on the thread of the virtual machine. After its end a handle does nothing.
template <PublishedClass T>
class ObjectHandle : public H_ck {
public:
    ObjectHandle() = default;
    explicit ObjectHandle(T* object) { reset(object); }
    ObjectHandle(ObjectHandle const& other) : ObjectHandle(other.object_) {}

    ObjectHandle& operator=(ObjectHandle const& other)
    {
        if (this != &other)
            reset(other.object_);
        return *this;
    }

    ~ObjectHandle() { giveBack(held()); }

    /// Refers to `object` (null allowed) from now on. When its host object cannot be made the handle becomes empty, and
    /// the host's error passes through.
    void reset(T* object = nullptr)
    {
        // Ends after all else: the owner of this handle may go with it, and so may what only it refers to. An empty
        // handle finds what one at its place left behind that ended in another virtual machine.
        COSInterfacePtr const last = detail::heldBy(this);
        giveBack(last);
        object_ = nullptr;
        if (!object)
            return;
        detail::NewArray array;
        detail::MarshalerOf<T*>::template toHost<T>(object, array.place());
        COSInterfacePtr const host = omGetArrayElement(array.get(), 0);
        detail::enterHandle(host, this);
        incrementRefCount(host);
        object_ = object;
    }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    /// The host object that this handle holds; null when the binding went before.
    COSInterface* held() const { return object_ ? detail::heldBy(this) : nullptr; }

    void giveBack(COSInterface* host)
    {
        if (host)
            detail::leaveHandle(this);
        decrementRefCount(host);
    }

    T* object_ = nullptr;
};

} // namespace orbis::factory
