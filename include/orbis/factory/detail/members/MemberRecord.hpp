#pragma once

#include "orbis/factory/descriptors/Callable.hpp"
#include "orbis/factory/descriptors/Invoker.hpp"
#include "orbis/factory/descriptors/MethodAttributes.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace orbis::factory {

/// The most inputs that a signature can describe, besides the object.
inline constexpr std::size_t maximumInputs = 20;

/// One callable member as it is described: what its descriptor will be made of, without a host. All texts live as
/// long as the program (they are literals).
struct MemberRecord {
    enum class Kind { Constructor, MemberFunction, FreeFunction };

    Kind kind;
    char const* name;           ///< null for a constructor, which is named after its class
    char const* parameterNames; ///< separated by commas, the object not among them; null for none
    MethodAttributes attributes;
    char const* outputType;              ///< "void" for no result
    std::vector<char const*> inputTypes; ///< without the object of a member function
    impl::Invoker::InvokeFn invokeFn;
    impl::Callable target;
    bool refusesNull = false;              ///< for an input that is needed as an object
    std::shared_ptr<void const> kept = {}; ///< what `target` points to, when that is no function
};

} // namespace orbis::factory
