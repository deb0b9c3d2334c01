#pragma once

#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"
#include "orbis/factory/detail/members/Routines.hpp"

#include <array>
#include <type_traits>

namespace orbis::factory::detail {

/// Returns whether the result and the parameters can be marshaled; stops compilation with a sentence otherwise.
template <class Result, class... A>
consteval bool signatureCanCross(TypeList<A...>)
{
    static_assert(sizeof...(A) <= maximumInputs, "A published function takes at most 20 parameters: pass several "
                                                 "values as one array or object.");
    constexpr bool isOfNamed = std::is_same_v<Result, NativeResult<Result>> || StoresNamedObject<Result>;
    static_assert(isOfNamed, "owned, copied, borrowed and inside are said of functions that return a pointer or a "
                             "reference to an object of a class that a Module publishes.");
    bool const parameters = (isMarshalable<A>() && ... && isOfNamed);
    if constexpr (std::is_void_v<Result>)
        return parameters && sizeof...(A) <= maximumInputs;
    else
        return isMarshalable<std::remove_cvref_t<NativeResult<Result>>>() && parameters &&
               sizeof...(A) <= maximumInputs;
}

/// Returns whether a function that is called without an object keeps no argument; stops compilation otherwise.
template <class... A>
consteval bool keepsNothing(TypeList<A...>)
{
    static_assert((!ParameterType<A>::isKept && ...),
                  "Without an object that the member is called on, nothing is kept: take a std::shared_ptr.");
    return (!ParameterType<A>::isKept && ...);
}

template <class... A>
std::span<TypeText const> inputTypes(TypeList<A...>)
{
    static constexpr std::array<TypeText, sizeof...(A)> texts{&dataTypeText<A>...};
    return texts;
}

template <class... A>
consteval bool refusesNullAmong(TypeList<A...>)
{
    return (refusesNull<A>() || ...);
}

/// How a record stores a callable: as a pointer, or as one to a functor that it keeps.
template <class Pointer>
struct StoredCallable {
    using Call = Pointer;

    static impl::Callable target(Pointer function) { return function; }
    static std::shared_ptr<void const> kept(Pointer) { return {}; }
};

template <class F>
struct StoredCallable<HeldFunctor<F>> {
    using Call = typename HeldFunctor<F>::Call;

    static impl::Callable target(HeldFunctor<F> const& held) { return held.functor.get(); }
    static std::shared_ptr<void const> kept(HeldFunctor<F> const& held) { return held.functor; }
};

template <class Pointer, class Result, class Parameters>
MemberRecord freeFunctionRecord(char const* name, Pointer function, char const* names, MethodText const& text)
{
    using Stored = StoredCallable<Pointer>;
    return {.kind = MemberRecord::Kind::FreeFunction,
            .name = name,
            .parameterNames = names,
            .attributes = text.attributes,
            .outputType = &dataTypeText<NativeResult<Result>>,
            .inputTypes = inputTypes(Parameters{}),
            .invokeFn = &FreeFunctionRoutine<typename Stored::Call, Result, Parameters>::invoke,
            .target = Stored::target(function),
            .text = text.text,
            .refusesNull = refusesNullAmong(Parameters{}),
            .kept = Stored::kept(function)};
}

template <class T, class Pointer, class Result, class Parameters>
MemberRecord memberFunctionRecord(char const* name, Pointer function, char const* names, MethodText const& text)
{
    return {.kind = MemberRecord::Kind::MemberFunction,
            .name = name,
            .parameterNames = names,
            .attributes = text.attributes,
            .outputType = &dataTypeText<NativeResult<Result>>,
            .inputTypes = inputTypes(Parameters{}),
            .invokeFn = &MemberFunctionRoutine<T, Pointer, Result, Parameters>::invoke,
            .target = function,
            .text = text.text,
            .refusesNull = refusesNullAmong(Parameters{})};
}

template <class T, class... A>
MemberRecord constructorRecord(char const* names, MethodText const& text)
{
    return {.kind = MemberRecord::Kind::Constructor,
            .name = nullptr,
            .parameterNames = names,
            .attributes = text.attributes,
            .outputType = &dataTypeText<T*>,
            .inputTypes = inputTypes(TypeList<A...>{}),
            .invokeFn = &ConstructorRoutine<T, TypeList<A...>>::invoke,
            .target = {},
            .text = text.text,
            .refusesNull = refusesNullAmong(TypeList<A...>{})};
}

} // namespace orbis::factory::detail
