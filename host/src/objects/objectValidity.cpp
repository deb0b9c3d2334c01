#include "objects/objectValidity.hpp"

#include "errors/hostError.hpp"

namespace velmara {

void refuseObject(Object const& object)
{
    throwHostError("VELMARA:object", object.isValid() ? "otherVirtualMachine" : "invalid",
                   {object.className()->string()});
}

} // namespace velmara
