#include "arrays/CellNest.hpp"

#include "arrays/Array.hpp"

#include <unordered_set>
#include <vector>

namespace velmara {

Array*& CellNest::nextDying(Array& array)
{
    return *static_cast<Array**>(array.scratch());
}

void CellNest::destroy(Array* cells) noexcept
{
    Array* dying = cells;
    nextDying(*cells) = nullptr;
    while (dying) {
        Array* const current = dying;
        dying = nextDying(*current);
        if (current->hasPayload() && current->payload()->removeReference()) {
            releaseCells(*current, dying);
            current->payload()->free();
        }
        current->freeHeader();
    }
}

void CellNest::releaseCells(Array& cells, Array*& dying) noexcept
{
    for (Array* const cell : cells.cells()) {
        if (!cell)
            continue;
        --cell->cellsAround_;
        if (cell->classID_ != hvCELL_CLASS) {
            cell->release();
        } else if (cell->removeReference()) {
            nextDying(*cell) = dying;
            dying = cell;
        }
    }
}

bool CellNest::contains(Array const& nest, Array const& sought)
{
    std::vector<Array const*> open{&nest};
    std::unordered_set<void const*> seen;
    while (!open.empty()) {
        Array const& current = *open.back();
        open.pop_back();
        if (&current == &sought)
            return true;
        if (current.classID_ != hvCELL_CLASS || !seen.insert(current.elements_).second)
            continue;
        for (Array const* const cell : current.cells()) {
            if (cell && cell->classID_ == hvCELL_CLASS)
                open.push_back(cell);
        }
    }
    return false;
}

} // namespace velmara
