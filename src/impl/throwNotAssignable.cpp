#include "orbis/factory/detail/members/Routines.hpp"

#include "marshal/throwError.hpp"

void orbis::factory::detail::throwNotAssignable(char const* className)
{
    throwInternalError(
        std::string("A constructor of ") + className +
        " has arguments, but its class info makes the native object beforehand and the class cannot be assigned.");
}
