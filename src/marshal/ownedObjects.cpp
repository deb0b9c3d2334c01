#include "orbis/factory/detail/objects/ownedObjects.hpp"

#include "orbis/factory/detail/arrays/ListElements.hpp"
#include "orbis/factory/detail/arrays/NewCells.hpp"
#include "orbis/factory/detail/objects/namedObjects.hpp"

#include "orbis/objectArrays.hpp"

#include <unordered_set>

namespace orbis::factory::detail {

hvArray_tag* ownedObjects(NamedClass const& named, hvArray_tag const* list, bool alone)
{
    std::size_t const count = omIsORBIS(list) ? list->get_number_of_elements() : 0; // "[]" is no objects
    NewCells cells(1, count);
    std::unordered_set<void const*> taken;
    for (std::size_t i = 0; i < count; ++i) {
        COSInterfacePtr const object = omGetArrayElement(list, i);
        if (!object)
            continue;
        NewArray scalar(omCreateORBISScalar(object));
        atElement(i, [&] {
            requireOwned(named, scalar.get(), alone);
            if (alone && !taken.insert(static_cast<COSInterface const*>(object)).second)
                throwNotConvertible("it is taken already, as an earlier element");
        });
        cells.set(i, scalar.release());
    }
    return cells.release();
}

} // namespace orbis::factory::detail
