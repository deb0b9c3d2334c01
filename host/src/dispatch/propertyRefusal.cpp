#include "dispatch/propertyRefusal.hpp"

#include "classes/Class.hpp"
#include "dispatch/ConvertedInputs.hpp"
#include "errors/hostError.hpp"

namespace velmara {

namespace {

std::string text(Name name)
{
    return std::string(name->view());
}

[[noreturn]] void refuse(char const* key, Property const& property)
{
    throwHostError("VELMARA:property", key, {text(property.name), text(property.definingClass.name())});
}

} // namespace

void refuseUnknown(Class const& cls, std::string_view property)
{
    throwHostError("VELMARA:property", "unknown", {text(cls.name()), std::string(property)});
}

void refuseMissingObject(Property const& property)
{
    refuse("noObject", property);
}

void refuseReading(Property const& property)
{
    if (property.traits.isAbstract)
        refuse("abstract", property);
    refuse(property.canBeWritten && property.traits.getAccess == orbis::MemberAccess::NoAccess ? "writeOnly"
                                                                                               : "getAccess",
           property);
}

void refuseWriting(Property const& property)
{
    if (property.traits.isAbstract)
        refuse("abstract", property);
    refuse(property.canBeRead && property.traits.setAccess == orbis::MemberAccess::NoAccess ? "readOnly" : "setAccess",
           property);
}

void refuseValue(Property const& property, hvArray_tag* value)
{
    throwHostError("VELMARA:property", "value", {text(property.name), explainRefusal(property.type(), value)});
}

} // namespace velmara
