#include "types/ElementConversion.hpp"

#include "types/ScalarConversion.hpp"

#include "host_extensions/convertNumber.hpp"
#include "host_extensions/numericClasses.hpp"

#include <cstring>

namespace velmara {

using namespace orbis::host_extensions;

namespace {

template <class Source, class T>
bool convertAll(Source const* from, std::size_t count, T* to)
{
    for (std::size_t i = 0; i < count; ++i) {
        std::optional<T> const converted = convertNumber<T>(from[i]);
        if (!converted)
            return false;
        to[i] = *converted;
    }
    return true;
}

/// One element as an array of its own.
ArrayPtr elementOf(Array const& input, std::size_t index)
{
    Array* const element = Array::create(input.classID(), 1, 1);
    std::size_t const size = arrayClass(input.classID()).elementSize;
    std::memcpy(element->writableElements(), static_cast<std::byte const*>(input.elements()) + index * size, size);
    return ArrayPtr(element);
}

/// The first cell that does not hold what is wanted; empty where all do.
std::string cellMismatchReason(hvClassID target, Array const& input)
{
    for (std::size_t i = 0; i < input.size(); ++i) {
        Array const* const cell = input.cells()[i];
        orbis::COSValue converted;
        if (!cell || !cell->isScalar() ||
            scalarConverters(target)[cell->classID()](cell->elements(), converted) == notConvertible)
            return "; " + elementPlace(i) + (cell ? scalarMismatchReason(target, *cell) : "is an empty cell");
    }
    return {};
}

} // namespace

std::string elementPlace(std::size_t index)
{
    return "element " + std::to_string(index) + " (counted from 0): ";
}

ArrayPtr convertElements(hvClassID target, Array const& input)
{
    if (!isNumeric(input.classID()))
        return nullptr;
    ArrayPtr converted(Array::create(target, input.rows(), input.columns()));
    bool const allFit = visitNumericClass(target, [&]<class T>(T) {
        auto* const to = static_cast<T*>(Array::of(converted.get())->writableElements());
        return visitNumericClass(input.classID(), [&]<class Source>(Source) {
            return convertAll(static_cast<Source const*>(input.elements()), input.size(), to);
        });
    });
    return allFit ? std::move(converted) : nullptr;
}

std::string elementsMismatchReason(hvClassID target, Array const& input)
{
    if (!isNumeric(input.classID()))
        return std::string(target == hvLOGICAL_CLASS ? "needs logicals" : "needs numbers") + ", not " +
               std::string(input.className()) +
               (input.classID() == hvCELL_CLASS ? cellMismatchReason(target, input) : std::string());
    ScalarConverter const convert = scalarConverters(target)[input.classID()];
    for (std::size_t i = 0; i < input.size(); ++i) {
        ArrayPtr const element = elementOf(input, i);
        orbis::COSValue converted;
        if (convert(Array::of(element.get())->elements(), converted) == notConvertible)
            return elementPlace(i) + scalarMismatchReason(target, *Array::of(element.get()));
    }
    return "fits";
}

} // namespace velmara
