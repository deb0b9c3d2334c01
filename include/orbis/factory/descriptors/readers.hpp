#pragma once

#include "orbis/factory/marshaling/PropertyValue.hpp"
#include "orbis/factory/marshaling/ReferredObjects.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"

#include <type_traits>

/// How getters read: each of these classes says through what (`Pointer`), what that gives (`Result`), as what type it
/// is marshaled (`Value`), and of which object it may be a part (`wholeOf`). `read` takes the pointer, or what converts
/// to it: it is fetched last, when it needs no register across calls.
namespace orbis::factory::detail {

/// Through a member `F` of `T`, a function or data.
template <class R, class T, class F, class V>
struct MemberReader {
    using Pointer = F;
    using Result = R;
    using Value = V;
    static constexpr bool needsObject = true;

    template <class Stored>
    static NativeResult<R> read(Stored const& getter, COSInterface* object)
    {
        T& self = nativeSelf<T>(object);
        F const member = getter;
        if constexpr (std::is_member_object_pointer_v<F>)
            return self.*member;
        else
            return (self.*member)();
    }

    static auto wholeOf(COSInterface* object) { return WholeOfProperty<T>{object}; }
};

/// Through a free function `F` that takes a `T*`.
template <class R, class T, class F, class V>
struct FunctionOnReader {
    using Pointer = F;
    using Result = R;
    using Value = V;
    static constexpr bool needsObject = true;

    template <class Stored>
    static NativeResult<R> read(Stored const& getter, COSInterface* object)
    {
        T& self = nativeSelf<T>(object);
        F const function = getter;
        return function(&self);
    }
    static auto wholeOf(COSInterface* object) { return WholeOfProperty<T>{object}; }
};

/// Through a function `F` without parameters.
template <class R, class V, class F = NativeResult<R> (*)()>
struct FunctionReader {
    using Pointer = F;
    using Result = R;
    using Value = V;
    static constexpr bool needsObject = false;

    static NativeResult<R> read(F const& function, COSInterface*) { return function(); }
    static auto wholeOf(COSInterface*) { return NoWhole(); }
};

/// Static data or a constant.
template <class V>
struct DataReader {
    using Pointer = V const*;
    using Result = V const&;
    using Value = V;
    static constexpr bool needsObject = false;

    static V const& read(V const* data, COSInterface*) { return *data; }
    static auto wholeOf(COSInterface*) { return NoWhole(); }
};

/// Returns the value of a property, owned by the caller.
template <class Reader, class Stored>
[[gnu::always_inline]] inline COSValue readValue(Stored const& getter, COSInterface* object)
{
    using R = typename Reader::Result;
    using V = typename Reader::Value;
    auto const read = [&]() -> NativeResult<R> { return Reader::read(getter, object); };
    if constexpr (ObjectResult<R>)
        return COSValue(objectResult<R>(Reader::wholeOf(object), read));
    else
        return toValue<std::conditional_t<std::is_reference_v<R>, V const&, V>>(read);
}

/// Stores the host objects to which the value of a property refers in `found`.
template <class Reader>
void findInterfaces(typename Reader::Pointer getter, COSInterface* object, Enumeration<COSInterface*>& found)
{
    ReferredObjects<typename Reader::Value>::find(Reader::read(getter, object), found);
}

template <class Reader>
inline constexpr bool refersToObjects = ReferredObjects<typename Reader::Value>::any;

} // namespace orbis::factory::detail
