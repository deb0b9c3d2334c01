#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/bindings.hpp"
#include "orbis/factory/detail/objects/namedObjects.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/objectArrays.hpp"

#include <memory>
#include <type_traits>
#include <utility>

/// The results of members that are objects.
namespace orbis::factory::detail {

/// A result `R` of which the author says who owns it.
template <class R, ResultOwner Owner>
struct OwnedResult {};

template <class R>
struct ResultTraits {
    using Native = R;
    /// What a reader of C++ expects of a pointer or a reference: a part of the object that gave it, if one did.
    static constexpr ResultOwner owner = ResultOwner::Whole;
};

template <class R, ResultOwner Owner>
struct ResultTraits<OwnedResult<R, Owner>> {
    using Native = R;
    static constexpr ResultOwner owner = Owner;
};

/// The type that the native function returns.
template <class Result>
using NativeResult = typename ResultTraits<Result>::Native;

template <class Result>
concept StoresNamedObject = IsNamedObject<NativeResult<Result>>;

/// Pointers to objects of classes with a `HostClass` that are bound when they are marshaled.
template <class T>
concept HandlePointer = std::is_pointer_v<T> && !IsNamedObject<T> && requires { requires MarshalerOf<T>::isHandle; };

template <class Result>
concept ObjectResult = StoresNamedObject<Result> || HandlePointer<Result>;

/// The object that a member is called on, of which a result may be a part: none.
struct NoWhole {
    COSInterface* host() const { return nullptr; }
    bool contains(void const*) const { return false; }
};

/// The first input of a call; null inputs for none.
template <class T>
struct WholeInput {
    COSValue const* inputs;
    T const* object;

    COSInterface* host() const
    {
        hvArray_tag const* const array = inputs ? inputs->array() : nullptr;
        return array && array->get_number_of_elements() != 0 ? static_cast<COSInterface*>(omGetArrayElement(array, 0))
                                                             : nullptr;
    }

    bool contains(void const* address) const { return inputs && object && isInside(address, object, sizeof(T)); }
};

/// The object whose property is read.
template <class T>
struct WholeOfProperty {
    COSInterface* object;

    COSInterface* host() const { return object; }

    bool contains(void const* address) const
    {
        T const* const native = MarshalerOf<T*>::template fromObject<T>(object);
        return native && isInside(address, native, sizeof(T));
    }
};

/// Returns a copy of an object, which is exactly of this class; null for null.
template <class Class>
std::unique_ptr<Class const> copyOf(NamedClass const& named, Class const* original)
{
    constexpr bool canCopy = CopyConstructible<Class>;
    static_assert(canCopy, "This result cannot be copied: its class has no public copy constructor, or no public "
                           "destructor, or is abstract.");
    if constexpr (canCopy) {
        if (original) {
            requireExactType(named, original);
            return std::make_unique<Class const>(*original);
        }
    }
    return nullptr;
}

/// Calls `function` and returns an array, owned by the caller, with the host object of its result. A result by value
/// becomes an object of its own; one that belongs to the host is deleted if it gets no host object.
template <class Result, class Whole, class F>
    requires StoresNamedObject<Result>
hvArray_tag* objectResult(Whole const& whole, F&& function)
{
    using Native = NativeResult<Result>;
    using Class = std::remove_cv_t<std::remove_pointer_t<std::remove_cvref_t<Native>>>;
    constexpr ResultOwner owner = ResultTraits<Result>::owner;
    NamedClass const& named = namedClassOf<Class>();
    [[maybe_unused]] auto const address = [&]() -> Class const* {
        if constexpr (std::is_reference_v<Native> && !std::is_pointer_v<std::remove_cvref_t<Native>>)
            return std::addressof(std::forward<F>(function)());
        else if constexpr (!std::is_class_v<Native>)
            return std::forward<F>(function)();
        else
            return nullptr;
    };
    if constexpr (std::is_class_v<Native> || owner == ResultOwner::Host || owner == ResultOwner::Copy) {
        static_assert(std::is_destructible_v<Class>, "The host cannot own this result: its class has no public "
                                                     "destructor. Say borrowed(...) or inside(...) of the function.");
        std::unique_ptr<Class const> object;
        if constexpr (std::is_class_v<Native>)
            object.reset(new Class(std::forward<F>(function)()));
        else if constexpr (owner == ResultOwner::Copy)
            object = copyOf<Class>(named, address());
        else
            object.reset(address());
        hvArray_tag* const array = announceNamed(named, object.get(), ResultOwner::Host, nullptr);
        static_cast<void>(object.release());
        return array;
    } else if constexpr (owner == ResultOwner::Whole) {
        return announceNamed(named, address(), owner, whole.host());
    } else {
        return announceNamed(named, address(), owner, nullptr);
    }
}

/// The same for classes with a `HostClass`. The host becomes responsible for an object that is returned, so one that
/// cannot be bound is deleted as its class info would, instead of leaked; but what lies inside the object of the member
/// is never the host's.
template <HandlePointer Result, class Whole, class F>
hvArray_tag* objectResult(Whole const& whole, F&& function)
{
    using Class = std::remove_const_t<std::remove_pointer_t<Result>>;
    auto* const object = const_cast<Class*>(std::forward<F>(function)());
    if (whole.contains(object)) [[unlikely]]
        if (COSInterface* const host = whole.host())
            return announcePart(MarshalerOf<Result>::boundAddress(object), HostClass<Class>::name, host);
    NewArray array;
    try {
        MarshalerOf<Result>::template toHost<Class>(object, array.place());
    } catch (...) {
        discardUnbound(MarshalerOf<Result>::boundAddress(object), HostClass<Class>::name);
        throw;
    }
    return array.release();
}

} // namespace orbis::factory::detail
