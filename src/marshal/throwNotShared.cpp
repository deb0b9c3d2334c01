#include "orbis/factory/types/SharedPointerPolicy.hpp"

#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory::detail {

void throwNotShared(char const* className)
{
    using foundation::core::except::Exception;
    using foundation::core::except::IInternalException;
    throw Exception<IInternalException, std::exception>(
        std::string("The object of class ") + className +
        " cannot be shared: native code that made it keeps it to itself, in no shared pointer.");
}

} // namespace orbis::factory::detail
