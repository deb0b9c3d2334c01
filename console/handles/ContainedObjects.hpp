#pragma once

#include "host_extensions/host_extensions.hpp"
#include "orbis/objectArrays.hpp"

#include <unordered_set>
#include <vector>

namespace velmara::console {

/// Calls `visit` with each object in an array, in the cells of one, and in their cells; with null for a null element.
template <class Visit>
void visitObjects(hvArray_tag const* array, Visit const& visit)
{
    std::vector<hvArray_tag const*> open{array};
    std::unordered_set<void const*> seen; // cells may hold the same cells many times over
    while (!open.empty()) {
        hvArray_tag const* const next = open.back();
        open.pop_back();
        hvClassID const classID = next ? next->_get_class_id_non_trivial() : hvUNKNOWN_CLASS;
        for (std::size_t i = 0; classID == hvOBJECT_CLASS && i < next->get_number_of_elements(); ++i)
            visit(static_cast<orbis::COSInterface*>(orbis::omGetArrayElement(next, i)));
        if (classID == hvCELL_CLASS && seen.insert(next).second)
            for (std::size_t i = next->get_number_of_elements(); i > 0; --i)
                open.push_back(orbis::host_extensions::getCell(next, i - 1));
    }
}

} // namespace velmara::console
