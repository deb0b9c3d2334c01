#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/throwNullInput.hpp"
#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include <type_traits>

namespace orbis::factory {

namespace detail {

/// A parameter `T*` that must be an object.
template <class T>
struct NotNull {
    T* object;

    T* value() const { return object; }
};

template <class A>
struct NotNullParameter {
    using Type = A;
};

template <class T>
    requires std::is_class_v<T>
struct NotNullParameter<T*> {
    using Type = NotNull<T>;
};

template <class Parameters>
struct NotNullParameters;

template <class... A>
struct NotNullParameters<TypeList<A...>> {
    using Type = TypeList<typename NotNullParameter<A>::Type...>;
};

/// A callable that must not be passed null.
template <class F>
struct RefusingNull {
    F function;

    template <class Pointer>
        requires std::is_convertible_v<F, Pointer>
    operator Pointer() const
    {
        return function;
    }
};

template <class F>
struct CallableTraits<RefusingNull<F>> : CallableTraits<F> {
    using Parameters = typename NotNullParameters<typename CallableTraits<F>::Parameters>::Type;
};

} // namespace detail

/// Pointers to objects that must be there.
class NotNullPolicy {};

template <>
class Marshaler<NotNullPolicy> : public detail::DataTypeName<Marshaler<NotNullPolicy>> {
    template <class T>
    struct Passed : T {};

public:
    template <class T>
    static Passed<T> fromHost(hvArray_tag const* in)
    {
        using Pointer = decltype(T::object);
        using Class = detail::MarshaledTypeOf<Pointer>;
        Pointer const object = detail::MarshalerOf<Pointer>::template fromHost<Class>(in);
        if (!object)
            detail::throwNullInput(in, detail::hostName<Class>());
        return {{object}};
    }

    template <class T>
    static char const* dataTypeText()
    {
        return detail::dataTypeText<decltype(T::object)>();
    }

    template <class T>
    static consteval bool refusesNull()
    {
        return true;
    }
};

template <class T>
    requires(detail::argumentRefusal<T*>() == detail::Refusal::None)
struct MarshalingPolicy<detail::NotNull<T>> {
    using Type = NotNullPolicy;
};

/// Says that a function must not be passed null where it takes pointers to objects, which scripts may pass otherwise:
///
///     .method("insertEndChild", notNull(&XMLNode::InsertEndChild), "node")
///
/// Null is then refused as it is for references. To be combined with `owned`, `borrowed` and `inside`.
template <class F>
constexpr auto notNull(F function)
{
    return detail::RefusingNull<std::decay_t<F>>{function};
}

} // namespace orbis::factory
