#include "orbis/factory/detail/members/Routines.hpp"

#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory::detail {

void throwNotAssignable(char const* className)
{
    using foundation::core::except::Exception;
    using foundation::core::except::IInternalException;
    throw Exception<IInternalException, std::exception>(
        std::string("A constructor of ") + className +
        " has arguments, but its class info makes the native object beforehand and the class cannot be assigned.");
}

} // namespace orbis::factory::detail
