#pragma once

#include "orbis/factory/base/refusals.hpp"
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

/// Returns why a value of type `D` cannot be the default of a parameter of type `P`, or `None`.
template <class D, class P>
consteval Refusal defaultRefusal()
{
    if (!std::is_convertible_v<D const&, P>)
        return Refusal::DefaultOfOtherType;
    bool const isCut = std::is_floating_point_v<D> && std::is_integral_v<std::remove_cvref_t<P>>;
    return isCut ? Refusal::DefaultFraction : Refusal::None;
}

/// The same for the values of the last parameters. `Optional` is the number of parameters that can have a default.
template <std::size_t Optional, class... D, class... A>
consteval Refusal defaultsRefusal(TypeList<A...>)
{
    if constexpr (sizeof...(D) > Optional)
        return Refusal::TooManyDefaults;
    else
        return []<std::size_t... Index>(std::index_sequence<Index...>) {
            constexpr std::size_t required = sizeof...(A) - sizeof...(D);
            return firstRefusal(defaultRefusal<D, std::tuple_element_t<required + Index, std::tuple<A...>>>()...);
        }(std::index_sequence_for<D...>());
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
    if constexpr (defaultsRefusal<Traits::arity - Objects, D...>(Parameters{}) == Refusal::None) {
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
    if constexpr (defaultsRefusal<sizeof...(A), D...>(TypeList<A...>{}) == Refusal::None) {
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
