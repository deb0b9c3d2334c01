#include "arrays/arrayComparison.hpp"

#include "arrays/Array.hpp"

#include <algorithm>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

namespace velmara {

namespace {

bool haveSameShape(Array const& a, Array const& b)
{
    return a.classID() == b.classID() && a.rows() == b.rows() && a.columns() == b.columns() &&
           a.objectClass() == b.objectClass();
}

/// Each text with its terminator, as for texts alone.
std::size_t textByteSize(std::span<StringElement const> strings)
{
    std::size_t total = 0;
    for (StringElement const& element : strings)
        total += element.isMissing() ? 0 : (element.length() + 1) * sizeof(char16_t);
    return total;
}

} // namespace

bool areEqual(hvArray_tag const* first, hvArray_tag const* second)
{
    std::vector<std::pair<Array const*, Array const*>> open{{Array::of(first), Array::of(second)}};
    std::set<std::pair<void const*, void const*>> seen; // cells may hold the same cells many times over
    while (!open.empty()) {
        auto const [a, b] = open.back();
        open.pop_back();
        if (a == b)
            continue;
        if (!a || !b || !haveSameShape(*a, *b))
            return false;
        if (a->classID() == hvCELL_CLASS) {
            if (a->elements() == b->elements() || !seen.emplace(a->elements(), b->elements()).second)
                continue;
            for (std::size_t i = 0; i < a->size(); ++i)
                open.emplace_back(a->cells()[i], b->cells()[i]);
        } else if (a->classID() == hvOBJECT_CLASS) {
            if (!std::ranges::equal(a->objects(), b->objects()))
                return false;
        } else if (a->classID() == hvSTRING_CLASS) {
            if (!std::ranges::equal(a->strings(), b->strings()))
                return false;
        } else if (a->size() != 0) {
            std::size_t const bytes = a->size() * arrayClass(a->classID()).elementSize;
            if (std::memcmp(a->elements(), b->elements(), bytes) != 0)
                return false;
        }
    }
    return true;
}

std::size_t byteSize(hvArray_tag const* array)
{
    std::size_t total = 0;
    std::vector<Array const*> open{Array::of(array)};
    while (!open.empty()) {
        Array const* const next = open.back();
        open.pop_back();
        if (!next)
            continue;
        if (next->classID() == hvCELL_CLASS)
            open.insert(open.end(), next->cells().begin(), next->cells().end());
        if (next->classID() == hvSTRING_CLASS)
            total += textByteSize(next->strings());
        else
            total += next->size() * arrayClass(next->classID()).elementSize;
    }
    return total;
}

} // namespace velmara
