#include "orbis/factory/detail/arrays/MapEntries.hpp"

#include "host_extensions/host_extensions.hpp"

namespace orbis::factory::detail {

namespace {

/// Two cells beside each other are a key and a value, unless the first one is an entry itself.
bool isEntry(hvArray_tag const* cells)
{
    hvArray_tag const* const first = host_extensions::getCell(cells, 0);
    if (!first || first->_get_class_id_non_trivial() == hvCHAR_CLASS)
        return true;
    return first->_get_class_id_non_trivial() != hvCELL_CLASS && first->get_number_of_elements() == 1;
}

bool hasColumns(hvArray_tag const* map)
{
    if (!map || map->get_number_of_elements() == 0 || map->get_dimensions()[1] != 2)
        return false;
    return map->get_dimensions()[0] != 1 || map->_get_class_id_non_trivial() != hvCELL_CLASS || isEntry(map);
}

} // namespace

MapEntries::MapEntries(hvArray_tag const* map) : areColumns_(hasColumns(map)), size_(0)
{
    if (areColumns_) {
        size_ = map->get_dimensions()[0];
        keys_.emplace(map, false);
        values_.emplace(map, false);
    } else {
        entries_.emplace(map, true);
        size_ = entries_->size();
    }
}

void MapEntries::select(std::size_t index)
{
    if (areColumns_) {
        keyAt_ = index;
        valueAt_ = size_ + index;
    } else {
        hvArray_tag const* const entry = entries_->at(index);
        constexpr std::size_t count = 2;
        keys_.emplace(entry, count);
        values_.emplace(entry, count);
    }
}

} // namespace orbis::factory::detail
