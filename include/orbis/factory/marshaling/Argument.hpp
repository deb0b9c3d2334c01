#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/PassedArray.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/COSValue.hpp"

#include <concepts>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace orbis::factory::detail {

/// Satisfied by types whose marshaler works on the value slot itself; all others work on the array in it.
template <class T>
concept TravelsInSlot = requires(COSValue const& slot) { MarshalerOf<T>::template fromHost<MarshaledTypeOf<T>>(slot); };

template <class T>
[[gnu::always_inline]] inline decltype(auto) convertFromHost(COSValue const& slot)
{
    if constexpr (TravelsInSlot<T>)
        return MarshalerOf<T>::template fromHost<MarshaledTypeOf<T>>(slot);
    else
        return MarshalerOf<T>::template fromHost<MarshaledTypeOf<T>>(slot.array());
}

/// The native value of one input of type `T`. Owns what the conversion allocated, for the length of a call.
template <class T>
class Argument {
public:
    explicit Argument(COSValue const& slot) : held_(convertFromHost<T>(slot)) {}

    /// Returns the argument of the native function: the held value, as an rvalue unless `T` is an lvalue reference; for
    /// a holder, what its `value()` returns.
    decltype(auto) get()
    {
        if constexpr (PassedAsObject<T>)
            return passObject();
        else if constexpr (!isHolder)
            return pass(held_);
        else if constexpr (std::is_lvalue_reference_v<decltype(held_.value())>)
            return pass(held_.value());
        else
            return held_.value();
    }

private:
    using Held = decltype(convertFromHost<T>(std::declval<COSValue const&>()));

    // Native types with a `value` member of their own are no holders.
    static constexpr bool isHolder =
        requires(Held& held) { held.value(); } && !std::is_same_v<Held, std::remove_cvref_t<T>>;

    template <class V>
    static decltype(auto) pass(V& value)
    {
        if constexpr (std::is_same_v<V, std::remove_cvref_t<T>> && !std::is_lvalue_reference_v<T>)
            return static_cast<V&&>(value);
        else
            return (value);
    }

    /// Copies the script's object, unless the parameter is a reference.
    decltype(auto) passObject()
    {
        if constexpr (std::is_lvalue_reference_v<T>)
            return static_cast<T>(held_.object);
        else
            return std::remove_cvref_t<T>(std::as_const(held_.object));
    }

    Held held_;
};

/// The arguments of a call, converted from left to right: bases are initialised in order, unlike the elements of a
/// tuple.
template <class Indices, class... T>
class Arguments;

template <std::size_t Index, class T>
struct ArgumentAt : Argument<T> {
    using Argument<T>::Argument;
};

template <std::size_t Index, NamesInput T>
struct ArgumentAt<Index, T> : Argument<T> {
    explicit ArgumentAt(COSValue const& slot)
    try : Argument
        <T>(slot) {}
    catch (...) {
        rethrowAtInput(Index);
    }

    decltype(auto) get()
    {
        try {
            return Argument<T>::get();
        } catch (...) { // of objects that are taken now
            rethrowAtInput(Index);
        }
    }
};

template <std::size_t... Index, class... T>
class Arguments<std::index_sequence<Index...>, T...> : ArgumentAt<Index, T>... {
public:
    explicit Arguments([[maybe_unused]] COSValue const* inputs) : ArgumentAt<Index, T>(inputs[Index])... {}

    template <class F>
    decltype(auto) apply(F&& function)
    {
        return std::forward<F>(function)(static_cast<ArgumentAt<Index, T>&>(*this).get()...);
    }

    decltype(auto) first()
        requires(sizeof...(T) > 0)
    {
        return firstOf(*this);
    }

private:
    template <class First>
    static decltype(auto) firstOf(ArgumentAt<0, First>& argument)
    {
        return argument.get();
    }
};

template <class... T>
using ArgumentsOf = Arguments<std::index_sequence_for<T...>, T...>;

/// Returns whether a result can pass an array to the host that native code did not create for it.
template <class Result>
consteval bool passesForeignArray()
{
    using Native = std::remove_cvref_t<Result>;
    if constexpr (PassedArray<Native>::any)
        return isView<Native>();
    else
        return false;
}

/// Calls `function` and stores its result, if any, as the one output. If the result is a reference, native code keeps
/// its array, and the host gets a reference to it.
template <class Result, class F>
void storeResult(int& outputCount, COSValue* outputs, F&& function)
{
    if constexpr (std::is_void_v<Result>) {
        std::forward<F>(function)();
    } else if constexpr (std::is_reference_v<Result> && passesForeignArray<Result>()) {
        auto const& kept = std::forward<F>(function)();
        storeResult<std::remove_cvref_t<Result>>(outputCount, outputs, [&] { return kept; });
        if (hvArray* const array = PassedArray<std::remove_cvref_t<Result>>::of(kept))
            array->add_reference();
    } else {
        using Native = MarshaledTypeOf<Result>;
        if constexpr (TravelsInSlot<Result>) {
            MarshalerOf<Result>::template toHost<Native>(std::forward<F>(function)(), outputs);
        } else {
            NewArray array;
            MarshalerOf<Result>::template toHost<Native>(std::forward<F>(function)(), array.place());
            *outputs = COSValue(array.release());
        }
        if (outputCount == 0)
            outputCount = 1;
    }
}

} // namespace orbis::factory::detail
