#pragma once

#include "orbis/factory/descriptors/Callable.hpp"
#include "orbis/factory/descriptors/Invoker.hpp"
#include "orbis/factory/descriptors/MethodAttributes.hpp"
#include "orbis/factory/detail/members/KeptObject.hpp"
#include "orbis/factory/detail/members/TypeText.hpp"

#include <cstddef>
#include <span>

namespace orbis::factory {

/// The maximum number of inputs of a signature, without the object.
inline constexpr std::size_t maximumInputs = 20;

/// The description of one callable member, from which its descriptor is created; needs no host. All texts are literals.
struct MemberRecord {
    enum class Kind { Constructor, MemberFunction, FreeFunction };

    Kind kind;
    char const* name;           ///< null for a constructor, which is named after its class
    char const* parameterNames; ///< comma-separated, without the object of a member function; null for none
    MethodAttributes attributes;
    TypeText outputType;                  ///< "void" for no result
    std::span<TypeText const> inputTypes; ///< without the object of a member function; static
    impl::Invoker::InvokeFn invokeFn;
    impl::Callable target;
    char const* text = "";
    bool namesInputs = false;     ///< whether errors of converting an input lack its name
    detail::KeptObject kept = {}; ///< owns what `target` points to, unless that is a function
};

} // namespace orbis::factory
