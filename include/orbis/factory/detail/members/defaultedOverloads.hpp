#pragma once

#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/detail/members/DefaultedCall.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"
#include "orbis/factory/detail/members/Routines.hpp"

#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace orbis::factory::detail {

struct NoFunction {};

template <std::size_t Count, class... A>
auto firstOf(TypeList<A...>)
{
    return []<std::size_t... Index>(std::index_sequence<Index...>) {
        return TypeList<std::tuple_element_t<Index, std::tuple<A...>>...>{};
    }(std::make_index_sequence<Count>());
}

template <std::size_t Count, class Parameters>
using First = decltype(firstOf<Count>(Parameters{}));

/// The pointer type as which a callable is stored: for a member function, a pointer to a member of `T`.
template <class T, class Traits>
struct PointerOf {
    using Type = typename Traits::Pointer;
};

template <class T, class Traits>
    requires(Traits::kind == CallableKind::Member)
struct PointerOf<T, Traits> {
    using Type = typename Traits::template PointerIn<T>;
};

/// Returns whether a value of type `D` can be the default of a parameter of type `P`; stops compilation with a sentence
/// otherwise.
template <class D, class P>
consteval bool isValidDefault()
{
    constexpr bool converts = std::is_convertible_v<D const&, P>;
    constexpr bool isCut = std::is_floating_point_v<D> && std::is_integral_v<std::remove_cvref_t<P>>;
    static_assert(converts, "A default value does not convert to the type of its parameter: the last value is the last "
                            "parameter's, and a parameter with a default is taken by value or by const reference.");
    static_assert(!isCut, "A default value for an integer parameter is a floating-point number: write an integer.");
    return converts && !isCut;
}

/// The same for the values of the last parameters. `Optional` is the number of parameters that can have a default.
template <std::size_t Optional, class... A, class... D>
consteval bool canComplete(TypeList<A...>, std::tuple<D...> const*)
{
    constexpr bool areFew = sizeof...(D) <= Optional;
    static_assert(areFew, "There are more default values than parameters that can have one; the object that a method "
                          "is called on cannot.");
    if constexpr (areFew)
        return []<std::size_t... Index>(std::index_sequence<Index...>) {
            constexpr std::size_t required = sizeof...(A) - sizeof...(D);
            return (isValidDefault<D, std::tuple_element_t<required + Index, std::tuple<A...>>>() && ... && true);
        }(std::index_sequence_for<D...>());
    else
        return false;
}

/// Returns a copy of `full` without its last inputs, which calls what is `kept` through `routine`.
ORBIS_FACTORY_API MemberRecord defaultedOverload(MemberRecord const& full, std::size_t omitted,
                                                 impl::Invoker::InvokeFn routine, KeptObject const& kept);

/// Returns one record for each number of omitted arguments, with the routine `routineFor<Omitted>()`.
template <class RoutineFor, std::size_t... Index>
std::vector<MemberRecord> defaultedOverloads(MemberRecord const& full, KeptObject const& kept, RoutineFor routineFor,
                                             std::index_sequence<Index...>)
{
    return {defaultedOverload(full, Index + 1, routineFor(std::integral_constant<std::size_t, Index + 1>()), kept)...};
}

/// The first `Objects` parameters are the object that a method is called on.
template <class T, std::size_t Objects, class F, class... D>
std::vector<MemberRecord> defaultedFunctions(MemberRecord const& full, [[maybe_unused]] F function,
                                             std::tuple<D...> const& values)
{
    using Traits = CallableTraits<F>;
    using Parameters = typename Traits::Parameters;
    using Result = typename Traits::Result;
    if constexpr (canComplete<Traits::arity - Objects>(Parameters{}, static_cast<std::tuple<D...>*>(nullptr))) {
        using Pointer = typename PointerOf<T, Traits>::Type;
        using Record = Defaulted<Pointer, D...>;
        auto const routineFor = []<std::size_t Omitted>(std::integral_constant<std::size_t, Omitted>) {
            using Call = DefaultedCall<Record, Omitted>;
            using Given = First<Traits::arity - Omitted, Parameters>;
            if constexpr (Traits::kind == CallableKind::Member)
                return &MemberFunctionRoutine<T, Call, Result, Given>::invoke;
            else
                return &FreeFunctionRoutine<Call, Result, Given>::invoke;
        };
        auto const target = [&]() -> Pointer {
            if constexpr (std::is_class_v<Pointer>)
                return Pointer(full.kept); // one object for all of its signatures
            else
                return static_cast<Pointer>(function);
        };
        auto const kept = KeptObject::make(Record{target(), values});
        return defaultedOverloads(full, kept, routineFor, std::index_sequence_for<D...>());
    } else {
        return {};
    }
}

template <class T, class... A, class... D>
std::vector<MemberRecord> defaultedConstructors(MemberRecord const& full, std::tuple<D...> const& values)
{
    if constexpr (canComplete<sizeof...(A)>(TypeList<A...>{}, static_cast<std::tuple<D...>*>(nullptr))) {
        using Record = Defaulted<NoFunction, D...>;
        auto const routineFor = []<std::size_t Omitted>(std::integral_constant<std::size_t, Omitted>) {
            using Given = First<sizeof...(A) - Omitted, TypeList<A...>>;
            return &ConstructorRoutine<T, Given, DefaultedCall<Record, Omitted>>::invoke;
        };
        auto const kept = KeptObject::make(Record{{}, values});
        return defaultedOverloads(full, kept, routineFor, std::index_sequence_for<D...>());
    } else {
        return {};
    }
}

} // namespace orbis::factory::detail
