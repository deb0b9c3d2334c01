#include "arrays/ArrayClass.hpp"

#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"

#include "host_extensions/numericClasses.hpp"

#include <array>

namespace velmara::console {

namespace {

using orbis::host_extensions::isNumeric;
using orbis::host_extensions::numericClasses;

struct Known {
    char const* name = nullptr;
    hvClassID classID = hvUNKNOWN_CLASS;
};

/// The numeric classes, then the others.
constexpr auto knownClasses = [] {
    std::array<Known, std::size(numericClasses) + 3> known;
    auto next = known.begin();
    for (auto const& numeric : numericClasses)
        if (isNumeric(numeric.classID))
            *next++ = {numeric.name, numeric.classID};
    for (Known const& other : {Known{"logical", hvLOGICAL_CLASS}, Known{"char", hvCHAR_CLASS},
                               Known{"string", hvSTRING_CLASS}, Known{"cell", hvCELL_CLASS}})
        *next++ = other;
    return known;
}();

[[noreturn]] void failUnknown(std::string const& given)
{
    std::string names;
    for (Known const& known : knownClasses)
        names.append(known.name).append(", ");
    fail("arrayClass", given + " is no class of arrays; these are: " + names + "and the published classes");
}

} // namespace

ArrayClass arrayClassOf(hvArray_tag const& array)
{
    return {array._get_class_id_non_trivial(), className(&array)};
}

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
