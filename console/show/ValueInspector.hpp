#pragma once

#include "lua/LuaApi.hpp"
#include "show/HostInspector.hpp"

#include <string>
#include <vector>

namespace velmara::console {

/// Writes values of the script on a page, with what they hold. Of the script's code it runs `__tostring` only.
class ValueInspector {
public:
    ValueInspector(lua_State* L, Page& page) : L_(L), page_(page), host_(L, page) {}

    /// The value at `index`.
    void show(Place const& place, int index);

private:
    void showShared(Place const& place, hvArray_tag* array);
    void showTable(Place const& place, int table);
    void showPublished(Place const& place, int proxy);
    void showRecords(Place const& place, int table);
    void showElements(Place const& place, int table);
    void showOthers(Place const& place, int table);

    lua_State* L_;
    Page& page_;
    HostInspector host_;
    std::vector<void const*> around_; ///< the tables whose elements are being written
};

} // namespace velmara::console
