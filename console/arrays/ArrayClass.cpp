#include "arrays/ArrayClass.hpp"

#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"

namespace velmara::console {

namespace {

struct Known {
    char const* name;
    hvClassID classID;
};

constexpr Known knownClasses[] = {
    {"double", hvDOUBLE_CLASS}, {"single", hvSINGLE_CLASS}, {"int8", hvINT8_CLASS},       {"uint8", hvUINT8_CLASS},
    {"int16", hvINT16_CLASS},   {"uint16", hvUINT16_CLASS}, {"int32", hvINT32_CLASS},     {"uint32", hvUINT32_CLASS},
    {"int64", hvINT64_CLASS},   {"uint64", hvUINT64_CLASS}, {"logical", hvLOGICAL_CLASS}, {"char", hvCHAR_CLASS},
    {"string", hvSTRING_CLASS}, {"cell", hvCELL_CLASS},
};

[[noreturn]] void failUnknown(std::string const& given)
{
    std::string names;
    for (Known const& known : knownClasses)
        names.append(known.name).append(", ");
    fail("arrayClass", given + " is no class of arrays; these are: " + names + "and the published classes");
}

} // namespace

ArrayClass checkArrayClass(lua_State* L, int index)
{
    std::string name(proxyName(L, index));
    if (name.empty())
        name = textAt(L, index);
    if (name.empty())
        failUnknown(kindAt(L, index));
    for (Known const& known : knownClasses)
        if (name == known.name)
            return {known.classID, name};
    if (HostContext::of(L).hvm().lookUp(name) != NameKind::Class)
        failUnknown('\'' + name + '\'');
    return {hvOBJECT_CLASS, name};
}

} // namespace velmara::console
