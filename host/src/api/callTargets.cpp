#include "api/callTargets.hpp"

#include "errors/hostError.hpp"

namespace velmara {

Class& requireClass(Machine& machine, std::string_view fullName)
{
    Class* cls = machine.packages().findClass(fullName);
    if (!cls)
        cls = machine.packages().findGlobalClass(fullName);
    if (!cls)
        throwHostError("VELMARA:class", "unknown", {std::string(fullName)});
    cls->ensureReady();
    return *cls;
}

void requireObjectArray(hvArray_tag const* array)
{
    if (!array || Array::of(array)->classID() != hvOBJECT_CLASS)
        throwHostError("VELMARA:object", "notObject", {array ? std::string(Array::of(array)->className()) : "null"});
}

} // namespace velmara
