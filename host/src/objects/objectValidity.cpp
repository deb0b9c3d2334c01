#include "objects/objectValidity.hpp"

#include "errors/hostError.hpp"

namespace velmara {

void refuseObject(Object const& object)
{
    throwHostError("VELMARA:object", object.isValid() ? "otherVirtualMachine" : "invalid",
                   {std::string(object.className()->view())});
}

} // namespace velmara
