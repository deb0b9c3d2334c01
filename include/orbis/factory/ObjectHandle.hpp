#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/handles.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/ownership/H_ck.hpp"

#include "orbis/objectArrays.hpp"

#include <type_traits>

namespace orbis::factory {

/// A strong reference from one native object to another one that is published: while the handle holds it, the host
/// object of the other one is not destroyed, and where the class info deletes the native object with that, neither is
/// the native object. A native object without a host object gets one.
///
/// The handle reads as empty once the binding by which it found the host object is gone: when the native object was
/// destroyed first, as scripts may have it, when it was released, and when its host object was bound to another one.
///
/// A reference on an object bound as a `full::Wrappable` is released when the call from the host that is running has
/// returned, or the next one begins: native code may delete the handle's owner, to which the object may lead back.
/// Other references are released at once.
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

    ~ObjectHandle() { release(); }

    /// Refers to `object` (null allowed) from now on. When its host object cannot be made the handle becomes empty, and
    /// the host's error passes through.
    void reset(T* object = nullptr)
    {
        // Destroyed after all else: the owner of this handle may go with it, and so may what only it refers to.
        COSInterfacePtr const last = detail::heldBy(this);
        release();
        object_ = nullptr;
        if (!object)
            return;
        detail::NewArray array;
        detail::MarshalerOf<T*>::template toHost<T>(object, array.place());
        COSInterfacePtr const host = omGetArrayElement(array.get(), 0);
        detail::enterHandle(host, detail::MarshalerOf<T*>::boundAddress(object), object, this);
        incrementRefCount(host);
        object_ = object;
    }

    /// The object; null when the handle is empty, or reads as empty, and while its virtual machine is not current.
    T* get() const { return object_ && detail::isHeldBy(this, object_) ? object_ : nullptr; }
    explicit operator bool() const { return get() != nullptr; }

    /// For handles that are known not to be empty.
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }

    /// True when the handle was made to refer to `object`, which may be gone or on its way.
    bool operator==(T const* object) const { return object_ == object; }

private:
    /// What is held here, maybe for another object: this handle, or one that was at its place, may have been changed
    /// while another virtual machine was current.
    void release()
    {
        if constexpr (std::is_same_v<RootClass<T>, full::Wrappable>)
            detail::releaseForHandleLater(this);
        else
            detail::releaseForHandle(this);
    }

    T* object_ = nullptr;
};

} // namespace orbis::factory
