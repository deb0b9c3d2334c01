#include "arrays/ArrayText.hpp"

#include "handles/HostContext.hpp"
#include "text/DisplayWidth.hpp"
#include "values/HostText.hpp"

#include "host_extensions/functionValues.hpp"
#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"
#include "orbis/objectArrays.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace velmara::console {

namespace {

using orbis::host_extensions::findNumericClass;
using orbis::host_extensions::visitNumericClass;

constexpr std::size_t maxRows = 10;
constexpr std::size_t maxColumns = 20;
constexpr std::size_t maxWidth = 74;
constexpr std::size_t maxCharacters = 24; ///< of one element's text

std::string sizeAndClass(hvArray_tag const& array)
{
    std::size_t const* const sizes = array.get_dimensions();
    return std::to_string(sizes[0]) + "-by-" + std::to_string(sizes[1]) + ' ' + className(&array);
}

/// Writes infinities and NaN itself: the C libraries differ in that.
template <class T>
std::string numberText(T number, int digits)
{
    if constexpr (std::same_as<T, bool>)
        return number ? "true" : "false";
    else if constexpr (std::is_floating_point_v<T>) {
        if (!std::isfinite(number))
            return std::isnan(number) ? "nan" : number < 0 ? "-inf" : "inf";
        char text[40];
        std::snprintf(text, sizeof text, "%.*g", digits, static_cast<double>(number));
        return text;
    } else
        return std::to_string(number);
}

/// The number at `index`; empty for arrays of other classes.
std::string numberText(hvArray_tag const& array, std::size_t index, int digits)
{
    hvClassID const classID = array._get_class_id_non_trivial();
    if (!findNumericClass(classID))
        return {};
    return visitNumericClass(classID, [&]<class T>(T) {
        return numberText(static_cast<T const*>(orbis::host_extensions::getData(&array))[index], digits);
    });
}

std::string quotedText(std::u16string_view text)
{
    bool const isLong = text.size() > maxCharacters;
    return '"' + toUtf8(text.substr(0, maxCharacters)) + (isLong ? "...\"" : "\"");
}

std::string elementText(hvArray_tag const& array, std::size_t index);

std::string cellText(hvArray_tag const* cell)
{
    if (!cell)
        return "null";
    hvClassID const classID = cell->_get_class_id_non_trivial();
    if (classID == hvCHAR_CLASS && cell->get_dimensions()[0] == 1)
        return quotedText(rowOf(*cell, 0));
    bool const isNumber = findNumericClass(classID) && cell->get_number_of_elements() == 1;
    return isNumber ? elementText(*cell, 0) : sizeAndClass(*cell);
}

std::string objectText(hvArray_tag const& array, std::size_t index)
{
    orbis::COSInterfacePtr const object = orbis::omGetArrayElement(&array, index);
    if (auto const* const enumerator = orbis::host_extensions::describeEnumerator(object))
        return enumerator->name;
    ArrayPtr const scalar(orbis::omCreateORBISScalar(object));
    return scalar->get_number_of_elements() == 0 ? "null" : className(scalar.get());
}

std::string elementText(hvArray_tag const& array, std::size_t index)
{
    switch (array._get_class_id_non_trivial()) {
    case hvSTRING_CLASS:
        if (auto const text = stringAt(array, index))
            return quotedText(*text);
        return "missing";
    case hvCELL_CLASS:
        return cellText(orbis::host_extensions::getCell(&array, index));
    case hvOBJECT_CLASS:
        return objectText(array, index);
    default:
        return numberText(array, index, 5);
    }
}

/// One column of texts: numbers aligned right, all else left.
class Column {
public:
    Column(hvArray_tag const& array, std::size_t column, std::size_t shownRows)
        : isNumeric_(findNumericClass(array._get_class_id_non_trivial()) != nullptr)
    {
        for (std::size_t row = 0; row < shownRows; ++row) {
            texts_.push_back(elementText(array, column * array.get_dimensions()[0] + row));
            width_ = std::max(width_, displayWidth(texts_.back()));
        }
    }

    /// With the gap before it.
    std::size_t width() const { return width_ + 2; }

    std::string padded(std::size_t row) const
    {
        std::string const blanks(width_ - displayWidth(texts_[row]), ' ');
        return isNumeric_ ? "  " + blanks + texts_[row] : "  " + texts_[row] + blanks;
    }

private:
    bool isNumeric_;
    std::vector<std::string> texts_;
    std::size_t width_ = 0;
};

std::string tableText(hvArray_tag const& array)
{
    std::size_t const* const sizes = array.get_dimensions();
    std::size_t const rows = std::min(sizes[0], maxRows);
    std::vector<Column> columns;
    for (std::size_t width = 0; columns.size() < std::min(sizes[1], maxColumns);) {
        Column const next(array, columns.size(), rows);
        width += next.width();
        if (width > maxWidth)
            break;
        columns.push_back(next);
    }
    std::string text;
    for (std::size_t row = 0; row < rows; ++row) {
        std::string line = "\n";
        for (Column const& column : columns)
            line += column.padded(row);
        line.resize(line.find_last_not_of(' ') + 1);
        text += line + (columns.size() < sizes[1] ? "  ..." : "");
    }
    return text + (sizes[0] > maxRows ? "\n  ..." : "");
}

std::string charactersText(hvArray_tag const& array)
{
    std::string text;
    for (std::size_t row = 0; row < std::min(array.get_dimensions()[0], maxRows); ++row)
        text += "\n  " + quotedText(rowOf(array, row));
    return text + (array.get_dimensions()[0] > maxRows ? "\n  ..." : "");
}

/// The text of a single element or one row of characters; empty for other arrays.
std::string plainText(hvArray_tag const& array)
{
    hvClassID const classID = array._get_class_id_non_trivial();
    if (classID == hvCHAR_CLASS && array.get_dimensions()[0] == 1)
        return toUtf8(rowOf(array, 0));
    if (array.get_number_of_elements() != 1)
        return {};
    if (classID != hvSTRING_CLASS)
        return numberText(array, 0, 14);
    auto const text = stringAt(array, 0);
    return text ? toUtf8(*text) : "missing";
}

} // namespace

std::string arrayText(lua_State* L, hvArray_tag const& array)
{
    Hvm::Scope const scope(HostContext::of(L).hvm());
    hvClassID const classID = array._get_class_id_non_trivial();
    bool const isText = classID == hvCHAR_CLASS || classID == hvSTRING_CLASS;
    if (std::string text = plainText(array); !text.empty() || (isText && array.get_number_of_elements() == 1))
        return text;
    if (array.get_number_of_elements() == 0 || classID == orbis::host_extensions::functionClass)
        return sizeAndClass(array);
    return sizeAndClass(array) + (classID == hvCHAR_CLASS ? charactersText(array) : tableText(array));
}

} // namespace velmara::console
