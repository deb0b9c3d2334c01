#include "help/ArrayHelp.hpp"

#include "text/Paragraph.hpp"

#include <algorithm>

namespace velmara::console {

std::string arrayMethodsText()
{
    std::string text = "Methods:\n";
    for (ArrayMethod const& method : arrayMethods())
        text += paragraph(method.signature, 2, 8) + paragraph(method.text, 6, 6);
    return text;
}

ArrayMethod const* arrayMethodAt(lua_State* L, int index)
{
    lua_CFunction const function = lua_tocfunction(L, index);
    auto const found = std::ranges::find(arrayMethods(), function, &ArrayMethod::function);
    return function && found != arrayMethods().end() ? &*found : nullptr;
}

} // namespace velmara::console
