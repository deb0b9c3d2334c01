#include "system/objectValidity.hpp"

#include "values/hostError.hpp"

namespace velmara {

void refuseObject(Object const& object)
{
    throwHostError("VELMARA:object", object.isValid() ? "otherVirtualMachine" : "invalid",
                   {std::string(object.className()->view())});
}

} // namespace velmara
