#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/handles.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/ownership/H_ck.hpp"

#include "orbis/objectArrays.hpp"

#include <type_traits>

namespace orbis::factory {

/// Strong reference from one native object to the host object of another. While the handle holds it, that host object
/// is not destroyed, and neither is its native object if the class info deletes the two together. A target without a
/// host object gets one.
///
/// The handle reads as empty once the binding through which it found the host object is removed: when the target is
/// destroyed (scripts may delete it), when it is released, or when its host object is bound to another native object.
///
/// References to objects bound as `full::Wrappable` are released only after the current call from the host has
/// returned, or when the next one begins, because native code may delete an object that owns handles and is reachable
/// through them. Other references are released at once.
///
/// `T` has a `HostClass`, or a `Module` publishes it; it may be incomplete where the handle is declared, and its
/// `HostClass` follow. A target that a `Module` publishes belongs to native code, unless it has a host object already.
///
/// Threading: on the thread of the virtual machine. A handle that outlives its virtual machine does nothing.
template <class T>
class ObjectHandle : public H_ck {
public:
    ObjectHandle() = default;
    explicit ObjectHandle(T* object) { reset(object); } ///< see `reset`
    ObjectHandle(ObjectHandle const& other) : ObjectHandle(other.get()) {}

    ObjectHandle& operator=(ObjectHandle const& other)
    {
        if (this != &other)
            reset(other.get());
        return *this;
    }

    ~ObjectHandle() { release(); }

    /// Makes the handle refer to `object` (may be null). If its host object cannot be created, the handle becomes empty
    /// and the host's error propagates.
    void reset(T* object = nullptr)
    {
        // Declared first, so that it is destroyed last: releasing the previous target may destroy the owner of this
        // handle.
        COSInterfacePtr const last = detail::heldBy(this);
        release();
        object_ = nullptr;
        if (!object)
            return;
        constexpr detail::Refusal refusal = detail::marshalingRefusal<T*>();
        if constexpr (refusal != detail::Refusal::None)
            detail::refuse<refusal, T>();
        else
            refer(object);
    }

    /// Returns the target; null when the handle reads as empty or when its virtual machine is not current.
    T* get() const { return object_ && detail::isHeldBy(this, object_) ? object_ : nullptr; }
    explicit operator bool() const { return get() != nullptr; } ///< false when it reads as empty

    /// Precondition: the handle does not read as empty.
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; } ///< likewise

    /// Compares addresses only: true for the object that was last set, even while or after that object is destroyed.
    bool operator==(T const* object) const { return object_ == object; }

private:
    void refer(T* object)
    {
        detail::NewArray array;
        detail::MarshalerOf<T*>::template toHost<T>(object, array.place());
        COSInterfacePtr const host = omGetArrayElement(array.get(), 0);
        detail::enterHandle(host, detail::MarshalerOf<T*>::boundAddress(object), object, this);
        incrementRefCount(host);
        object_ = object;
    }

    /// Releases whatever is recorded for this address, which need not be a reference to `object_`: the handle, or an
    /// earlier one at the same address, may have been changed while another virtual machine was current.
    void release()
    {
        if constexpr (!requires { sizeof(T); })
            detail::refuse<detail::Refusal::IncompleteClass, T>();
        else if constexpr (std::is_same_v<RootClass<T>, full::Wrappable>)
            detail::releaseForHandleLater(this);
        else
            detail::releaseForHandle(this);
    }

    T* object_ = nullptr;
};

} // namespace orbis::factory
