#include "pictures/GraphFunction.hpp"

#include "handles/ContainedObjects.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "pictures/DotText.hpp"
#include "pictures/LivePicture.hpp"
#include "pictures/SvgText.hpp"
#include "reference/OutputFile.hpp"
#include "values/HostCall.hpp"

namespace velmara::console {

namespace {

/// The objects in the value at 1.
std::vector<orbis::COSInterfacePtr> givenObjects(lua_State* L)
{
    HostCall call(L);
    hvArray_tag const* array = testObject(L, 1);
    if (!array && (isHostArray(L, 1) || (lua_istable(L, 1) && proxyName(L, 1).empty())))
        array = call.inputs(1).front();
    std::vector<orbis::COSInterfacePtr> objects;
    visitObjects(array, [&](orbis::COSInterface* object) { objects.emplace_back(object); });
    if (objects.empty() && (!array || array->get_number_of_elements() > 0))
        fail("noObject", std::string("graph needs an object, or a table or an array of objects") +
                             (array ? ", and finds none in " : ", not ") + kindAt(L, 1));
    return objects;
}

/// Upvalue 1 tells whether the script is restricted.
void requireAllowed(lua_State* L, PictureOptions const& options)
{
    bool const isRestricted = lua_toboolean(L, lua_upvalueindex(1)) != 0;
    if (isRestricted && (options.format != PictureOptions::Format::Dot || !options.file.empty()))
        fail("restricted", "with --restricted, graph starts no program and writes no file");
}

int graph(lua_State* L)
{
    int const optionsIndex = isOptions(L, 1) ? 1 : 2;
    PictureOptions const options = optionsAt(L, optionsIndex);
    requireAllowed(L, options);
    lua_settop(L, optionsIndex - 1);
    Hvm& hvm = HostContext::of(L).hvm();
    HandlesToObjects const handles = options.showsHandles ? handlesToObjects(hvm) : HandlesToObjects();
    bool const isOfAll = lua_isnoneornil(L, 1);
    std::string text =
        dotText(isOfAll ? pictureOfAll(L, options, handles) : pictureOf(L, givenObjects(L), options, handles));
    if (options.format == PictureOptions::Format::Svg)
        text = svgText(L, text);
    if (options.file.empty()) {
        pushText(L, text);
        return 1;
    }
    writeFile(std::u8string(options.file.begin(), options.file.end()), text);
    return 0;
}

} // namespace

void bindGraphFunction(lua_State* L, bool isRestricted)
{
    lua_pushboolean(L, isRestricted);
    lua_pushcclosure(L, guarded<graph>, 1);
    lua_setglobal(L, "graph");
}

} // namespace velmara::console
