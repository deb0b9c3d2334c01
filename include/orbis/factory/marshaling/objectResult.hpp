#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/NewObject.hpp"
#include "orbis/factory/detail/bindings/bindings.hpp"
#include "orbis/factory/detail/objects/namedObjects.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/objectArrays.hpp"

#include <type_traits>
#include <typeinfo>
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

/// Classes whose objects know their shares, of which their host objects get one.
template <class T>
concept SharesItself = requires(T const& object) { object.weak_from_this(); };

/// Likewise, and references to such objects.
template <class Result>
concept StoresHandle = HandlePointer<NativeResult<Result>> ||
                       (IsHandleObject<NativeResult<Result>> && std::is_reference_v<NativeResult<Result>>);

/// Vectors of raw pointers to objects.
template <class T>
inline constexpr bool isObjectVector = false;

template <class Result>
concept StoresObjects = isObjectVector<std::remove_cvref_t<NativeResult<Result>>>;

template <class Result>
concept ObjectResult = StoresNamedObject<Result> || StoresHandle<Result> || StoresObjects<Result>;

/// Returns why a result, of which the author may have said who owns it, cannot be published, or `None`.
template <class Result>
consteval Refusal storedResultRefusal()
{
    using Native = NativeResult<Result>;
    constexpr bool isOwnedByHost = ResultTraits<Result>::owner == ResultOwner::Host || !std::is_reference_v<Native>;
    if constexpr (resultRefusal<Native>() != Refusal::None)
        return resultRefusal<Native>();
    else if constexpr (!std::is_same_v<Result, Native> &&
                       (!ObjectResult<Result> ||
                        (StoresObjects<Result> && ResultTraits<Result>::owner == ResultOwner::Host)))
        return Refusal::OwnerOfNoObject;
    else if constexpr (ResultTraits<Result>::owner == ResultOwner::Copy)
        return CopyConstructible<std::remove_const_t<std::remove_pointer_t<std::remove_cvref_t<Native>>>>
                   ? Refusal::None
                   : Refusal::NotCopyable;
    else if constexpr (StoresNamedObject<Result> && isOwnedByHost &&
                       !(std::is_pointer_v<Native> && ResultTraits<Result>::owner != ResultOwner::Host))
        return std::is_destructible_v<std::remove_pointer_t<std::remove_cvref_t<Native>>> ? Refusal::None
                                                                                          : Refusal::NotDestructible;
    else
        return Refusal::None;
}

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

/// Returns a new copy of an object, which is exactly of this class; null for null.
template <class Class>
Class const* copyOf(NamedClass const& named, Class const* original)
{
    if (!original)
        return nullptr;
    requireExactType(named, original);
    return new Class(*original);
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
            return __builtin_addressof(std::forward<F>(function)());
        else if constexpr (!std::is_class_v<Native>)
            return std::forward<F>(function)();
        else
            return nullptr;
    };
    if constexpr (std::is_class_v<Native> || owner == ResultOwner::Host || owner == ResultOwner::Copy) {
        if constexpr (std::is_class_v<Native>) {
            return announceNamed(named, new Class(std::forward<F>(function)()), ResultOwner::Host, nullptr);
        } else if constexpr (owner == ResultOwner::Copy) {
            return announceNamed(named, copyOf<Class>(named, address()), ResultOwner::Host, nullptr);
        } else {
            Class const* const given = address();
            return announceNamed(named, given, ResultOwner::Host, whole.contains(given) ? whole.host() : nullptr);
        }
    } else if constexpr (owner == ResultOwner::Whole) {
        return announceNamed(named, address(), owner, whole.host());
    } else {
        return announceNamed(named, address(), owner, nullptr);
    }
}

/// The same for classes with a `HostClass`. The host becomes responsible for an object that is returned as a pointer,
/// unless the author says otherwise, so one that cannot be bound is deleted as its class info would, instead of leaked;
/// but what lies inside the object of the member is never the host's, and neither is what is returned as a reference.
template <StoresHandle Result, class Whole, class F>
hvArray_tag* objectResult(Whole const& whole, F&& function)
{
    using Native = NativeResult<Result>;
    using Class = std::remove_cv_t<std::remove_pointer_t<std::remove_reference_t<Native>>>;
    constexpr bool isReference = std::is_reference_v<Native>;
    constexpr bool isSaid = !std::is_same_v<Result, Native>;
    constexpr ResultOwner owner = isSaid || isReference ? ResultTraits<Result>::owner : ResultOwner::Host;
    Class const* found = nullptr;
    if constexpr (isReference)
        found = std::addressof(std::forward<F>(function)());
    else
        found = std::forward<F>(function)();
    auto* const object = const_cast<Class*>(found);
    auto const keep = [&](COSInterface* host) {
        std::type_info const* type = &typeid(Class);
        if constexpr (std::is_polymorphic_v<Class>)
            type = &typeid(*object);
        return announcePart(MarshalerOf<Class*>::boundAddress(object), *type, nativeClassRecord<Class>(), host);
    };
    if constexpr (owner != ResultOwner::Host && !SharesItself<Class>) {
        if (object)
            return keep(owner == ResultOwner::Whole ? whole.host() : nullptr);
    } else if (whole.contains(object)) [[unlikely]] {
        if (COSInterface* const host = whole.host())
            return keep(host);
    }
    NewArray array;
    try {
        MarshalerOf<Class*>::template toHost<Class>(object, array.place());
    } catch (...) {
        discardUnbound(MarshalerOf<Class*>::boundAddress(object), HostClass<Class>::name);
        throw;
    }
    return array.release();
}

/// The same for vectors: each element is a result of its own.
template <StoresObjects Result, class Whole, class F>
hvArray_tag* objectResult(Whole const& whole, F&& function)
{
    using Vector = std::remove_cvref_t<NativeResult<Result>>;
    auto const& values = std::forward<F>(function)();
    NewArray row;
    if constexpr (ResultTraits<Result>::owner == ResultOwner::Native)
        MarshalerOf<Vector>::template toHostInside<Vector>(NoWhole(), values, row.place());
    else
        MarshalerOf<Vector>::template toHostInside<Vector>(whole, values, row.place());
    return row.release();
}

} // namespace orbis::factory::detail
