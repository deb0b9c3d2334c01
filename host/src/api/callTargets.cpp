#include "api/callTargets.hpp"

#include "errors/hostError.hpp"

namespace velmara {

Class& requireGlobalClass(Machine& machine, std::string_view fullName)
{
    Class* const cls = machine.packages().findGlobalClass(fullName);
    if (!cls)
        throwHostError("VELMARA:class", "unknown", {std::string(fullName)});
    return *cls;
}

Class& requireClassOfEmpty(Machine& machine, hvArray_tag* array)
{
    return requireClass(machine, Array::of(array)->className());
}

void requireObjectArray(hvArray_tag const* array)
{
    if (!array || Array::of(array)->classID() != hvOBJECT_CLASS)
        throwHostError("VELMARA:object", "notObject", {array ? std::string(Array::of(array)->className()) : "null"});
}

} // namespace velmara
