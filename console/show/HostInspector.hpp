#pragma once

#include "lua/LuaApi.hpp"
#include "text/Page.hpp"

#include "velmara/Listing.hpp"
#include "velmara/Value.hpp"

#include "libhv/hvArray.hpp"

#include <string>
#include <vector>

namespace velmara::console {

/// Where a value is written: behind its label in the first line, and below that indented.
struct Place {
    std::string label;
    std::size_t indent = 0;
    int depth = 0; ///< of the value in those around it
};

/// How deep values in values are written with what they hold.
inline constexpr int maxShownDepth = 2;

/// How many elements of a value at that place are written at most.
std::size_t maxShownElements(Page const& page, Place const& place);

/// "... 12 more"
std::string moreText(std::size_t count);

/// Writes values of the host on a page, with what they hold.
class HostInspector {
public:
    HostInspector(lua_State* L, Page& page) : L_(L), page_(page) {}

    /// An array; one object with its properties, more of them as a table.
    void showArray(Place const& place, hvArray_tag* array, ValueShape shape = ValueShape::Plain);

    /// A class: its enumerators and static properties.
    void showClass(Place const& place, ClassRecord const& cls);

    /// A text of several lines; those after the first are indented by `hanging` more.
    void showText(Place const& place, std::string const& text, std::size_t hanging);

private:
    void showObject(Place const& place, hvArray_tag* object);
    void showProperties(Place const& place, std::vector<PropertyRecord const*> const& properties, hvArray_tag* object,
                        std::string const& className);
    void showProperty(Place const& place, PropertyRecord const& property, hvArray_tag* object,
                      std::string const& className);
    void showNames(Place const& place, hvArray_tag const* objects);
    void showCells(Place const& place, hvArray_tag const* cells);
    void showRows(Place const& place, hvArray_tag const* objects);

    lua_State* L_;
    Page& page_;
    std::vector<void const*> around_; ///< the objects whose properties are being written
};

} // namespace velmara::console
