#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/PassedArray.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/COSValue.hpp"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace orbis::factory::detail {

/// Marshalers of native scalars work on the value slot itself, all others on the array in it.
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

/// The native value of one input of type `T` for the length of a call. What the conversion allocated goes with it.
template <class T>
class Argument {
public:
    explicit Argument(COSValue const& slot) : held_(convertFromHost<T>(slot)) {}

    /// What the native function is given: `T` itself, moved out of here unless `T` is an lvalue reference, or what
    /// the holder's `value` is.
    decltype(auto) get()
    {
        if constexpr (!isHolder)
            return pass(held_);
        else if constexpr (std::is_lvalue_reference_v<decltype(held_.value())>)
            return pass(held_.value());
        else
            return held_.value();
    }

private:
    using Held = decltype(convertFromHost<T>(std::declval<COSValue const&>()));

    // A native type may have a `value` of its own.
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

    Held held_;
};

/// The arguments of a call, converted from left to right.
template <class Indices, class... T>
class Arguments;

template <std::size_t Index, class T>
struct ArgumentAt : Argument<T> {
    using Argument<T>::Argument;
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

/// True for a result that hands the host an array that need not be a new one.
template <class Result>
consteval bool passesForeignArray()
{
    using Native = std::remove_cvref_t<Result>;
    if constexpr (PassedArray<Native>::any)
        return isView<Native>();
    else
        return false;
}

/// Calls `function` and stores what it gives, if anything, as the one output. The array of a result that is a reference
/// stays the native side's: the host gets a reference more.
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
