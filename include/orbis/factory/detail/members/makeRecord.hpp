#pragma once

#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"
#include "orbis/factory/detail/members/Routines.hpp"
#include "orbis/factory/detail/members/StoredCallable.hpp"

#include <array>
#include <type_traits>

namespace orbis::factory::detail {

template <class... A>
std::span<TypeText const> inputTypes(TypeList<A...>)
{
    static constexpr std::array<TypeText, sizeof...(A)> texts{&dataTypeText<A>...};
    return texts;
}

/// Whether errors of converting one of the inputs are thrown without its name.
template <class... A>
consteval bool needsInputNames(TypeList<A...>)
{
    return ((refusesNull<A>() || NamesInput<A>) || ...);
}

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
            .namesInputs = needsInputNames(Parameters{}),
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
            .namesInputs = needsInputNames(Parameters{})};
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
            .namesInputs = needsInputNames(TypeList<A...>{})};
}

} // namespace orbis::factory::detail
