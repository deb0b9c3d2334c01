#pragma once

#include "orbis/factory/H_ck.hpp"
#include "orbis/factory/MarshalingPolicy.hpp"
#include "orbis/factory/detail/NewArray.hpp"
#include "orbis/factory/detail/handles.hpp"

#include "orbis/objectArrays.hpp"

namespace orbis::factory {

/// With which a native object refers to another one that is published: while the handle refers to it, its host object
/// does not end, and where the class info deletes it with that, neither does the native object. A native object without
/// a host object gets one. Empty, or as if it were, when the native object goes first, as scripts may have it: then it
/// is told apart by its address only.
///
/// Threading: on the thread of the virtual machine. After its end a handle does nothing.
template <PublishedClass T>
class ObjectHandle : public H_ck {
public:
    ObjectHandle() = default;
    explicit ObjectHandle(T* object) { reset(object); }
    ObjectHandle(ObjectHandle const& other) : ObjectHandle(other.get()) {}

    ObjectHandle& operator=(ObjectHandle const& other)
    {
        if (this != &other)
            reset(other.get());
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

    /// The object; null when the handle is empty, or as if it were, and while its virtual machine is not current.
    T* get() const { return held() ? object_ : nullptr; }
    explicit operator bool() const { return get() != nullptr; }

    /// For handles that are known not to be empty.
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }

    /// True when the handle was made to refer to `object`, which may be gone or on its way.
    bool operator==(T const* object) const { return object_ == object; }

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
