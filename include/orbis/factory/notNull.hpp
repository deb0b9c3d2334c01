#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/throwNullInput.hpp"
#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include <memory>
#include <type_traits>
#include <utility>

namespace orbis::factory {

/// A parameter that takes an object as a `P`, a plain or an owning pointer, and refuses null: for constructors, as
/// `constructor<NotNull<std::shared_ptr<Connection>>>("connection")`. See `notNull`.
template <class P>
struct NotNull {
    P pointer; ///< not null when native code gets it

    operator P() { return std::move(pointer); } ///< moves it out
};

namespace detail {

template <class A>
struct NotNullParameter {
    using Type = A;
};

template <class T>
    requires std::is_class_v<T>
struct NotNullParameter<T*> {
    using Type = NotNull<T*>;
};

template <class T>
struct NotNullParameter<std::unique_ptr<T>> {
    using Type = NotNull<std::unique_ptr<T>>;
};

template <class T>
struct NotNullParameter<std::shared_ptr<T>> {
    using Type = NotNull<std::shared_ptr<T>>;
};

template <class T>
struct NotNullParameter<std::shared_ptr<T> const&> {
    using Type = NotNull<std::shared_ptr<T>>;
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

/// `NotNull`.
class NotNullPolicy {};

template <>
class Marshaler<NotNullPolicy> : public detail::DataTypeName<Marshaler<NotNullPolicy>> {
    template <class T>
    using Pointer = decltype(T::pointer);

    template <class T>
    using Class = std::remove_cv_t<typename std::pointer_traits<Pointer<T>>::element_type>;

    /// Converts when the native function is called, as some owning pointers do.
    template <class P, class Held>
    struct Passed {
        Held held;

        P value()
        {
            if constexpr (requires { held.value(); })
                return held.value();
            else
                return std::move(held);
        }
    };

public:
    template <class T>
    static auto fromHost(hvArray_tag const* in)
    {
        using P = Pointer<T>;
        using Object = detail::MarshalerOf<Class<T>*>;
        if (!Object::template fromHost<Class<T>>(in))
            detail::throwNullInput(in, detail::hostName<Class<T>>());
        using Held = decltype(detail::MarshalerOf<P>::template fromHost<detail::MarshaledTypeOf<P>>(in));
        return Passed<P, Held>{detail::MarshalerOf<P>::template fromHost<detail::MarshaledTypeOf<P>>(in)};
    }

    template <class T>
    static char const* dataTypeText()
    {
        return detail::dataTypeText<Pointer<T>>();
    }

    template <class T>
    static consteval bool refusesNull()
    {
        return true;
    }
};

template <class P>
    requires(detail::argumentRefusal<P>() == detail::Refusal::None)
struct MarshalingPolicy<NotNull<P>> {
    using Type = NotNullPolicy;
};

/// Says that a function must not be passed null where it takes pointers to objects, plain or owning, which scripts may
/// pass otherwise:
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
