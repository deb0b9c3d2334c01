#include "orbis/factory/types/SharedPointerPolicy.hpp"

#include "marshal/throwError.hpp"

void orbis::factory::detail::throwNotShared(char const* className)
{
    throwInternalError(std::string("The object of class ") + className +
                       " cannot be shared: native code that made it keeps it to itself, in no shared pointer.");
}
