#include "arrays/ArrayText.hpp"

#include "arrays/Shape.hpp"
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
#include <cstring>
#include <utility>
#include <vector>

namespace velmara::console {

namespace {

using orbis::host_extensions::findNumericClass;
using orbis::host_extensions::visitNumericClass;

constexpr std::size_t maxRows = 10;
constexpr int tableDigits = 5;
constexpr std::size_t lastRows = 3; ///< of them, when there are more rows
constexpr std::size_t maxWidth = 80;
constexpr std::size_t maxCharacters = 24; ///< of one element's text
constexpr char const* gap = "  ...";

/// The rows that are shown: all, or the first and the last ones.
class ShownRows {
public:
    explicit ShownRows(std::size_t rows) : rows_(rows), first_(rows <= maxRows ? rows : maxRows - lastRows) {}

    std::size_t count() const { return std::min(rows_, maxRows); }
    std::size_t operator[](std::size_t i) const { return i < first_ ? i : rows_ - count() + i; }

    /// Calls `line(i)` for each of them, and returns the lines, with a gap where rows are left out.
    template <class Line>
    std::string lines(Line const& line) const
    {
        std::string text;
        for (std::size_t i = 0; i < count(); ++i) {
            if (i == first_)
                text.append("\n").append(gap);
            text += '\n' + line(i);
        }
        return text;
    }

private:
    std::size_t rows_;
    std::size_t first_;
};

/// Writes infinities and NaN itself: the C libraries differ in that.
template <class T>
std::string numberText(T number, int digits)
{
    if constexpr (std::same_as<T, bool>)
        return number ? "true" : "false";
    else if constexpr (std::is_floating_point_v<T>) {
        if (!std::isfinite(number))
            return std::isnan(number) ? "nan" : number < 0 ? "-inf" : "inf";
        auto const value = static_cast<double>(number);
        // In a table, an exponent is harder to read than some digits more.
        bool const isWhole = digits == tableDigits && std::abs(value) >= 99999.5 && std::abs(value) < 1e10;
        char text[40];
        if (isWhole)
            std::snprintf(text, sizeof text, "%.0f", value);
        else
            std::snprintf(text, sizeof text, "%.*g", digits, value);
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

std::string elementText(hvArray_tag const& array, std::size_t index);

std::string cellText(hvArray_tag const* cell)
{
    if (!cell)
        return "null";
    hvClassID const classID = cell->_get_class_id_non_trivial();
    if (classID == hvCHAR_CLASS && cell->get_dimensions()[0] == 1)
        return quoteText(rowOf(*cell, 0), maxCharacters);
    bool const isNumber = findNumericClass(classID) && cell->get_number_of_elements() == 1;
    return isNumber ? elementText(*cell, 0) : sizeAndClass(cell);
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
            return quoteText(*text, maxCharacters);
        return "missing";
    case hvCELL_CLASS:
        return cellText(orbis::host_extensions::getCell(&array, index));
    case hvOBJECT_CLASS:
        return objectText(array, index);
    default:
        return numberText(array, index, tableDigits);
    }
}

/// One column of texts: numbers aligned at the point, all else left.
class Column {
public:
    Column(hvArray_tag const& array, std::size_t column, ShownRows const& rows)
        : isNumeric_(findNumericClass(array._get_class_id_non_trivial()) != nullptr)
    {
        for (std::size_t i = 0; i < rows.count(); ++i) {
            texts_.push_back(elementText(array, column * array.get_dimensions()[0] + rows[i]));
            std::size_t const tail = tailWidth(texts_.back());
            tailWidth_ = std::max(tailWidth_, tail);
            headWidth_ = std::max(headWidth_, displayWidth(texts_.back()) - tail);
        }
    }

    /// With the blanks before it.
    std::size_t width() const { return 2 + headWidth_ + tailWidth_; }

    std::string padded(std::size_t i) const
    {
        std::size_t const tail = tailWidth(texts_[i]);
        std::string const before(headWidth_ - (displayWidth(texts_[i]) - tail), ' ');
        std::string const after(tailWidth_ - tail, ' ');
        return "  " + (isNumeric_ ? before + texts_[i] : texts_[i] + before) + after;
    }

private:
    /// The width of a number's text from the point on.
    std::size_t tailWidth(std::string const& text) const
    {
        return isNumeric_ ? text.size() - std::min(text.find('.'), text.size()) : 0;
    }

    bool isNumeric_;
    std::vector<std::string> texts_;
    std::size_t headWidth_ = 0;
    std::size_t tailWidth_ = 0;
};

/// The columns that fit the width: the first, and of the last ones half as many.
struct ShownColumns {
    std::vector<Column> first;
    std::vector<Column> last; ///< the last one first
    bool areAll = true;

    ShownColumns(hvArray_tag const& array, ShownRows const& rows)
    {
        std::size_t const columns = array.get_dimensions()[1];
        for (std::size_t shown = 0, width = 0; shown < columns; ++shown) {
            bool const isLast = first.size() > 2 * last.size();
            Column column(array, isLast ? columns - 1 - last.size() : first.size(), rows);
            width += column.width();
            areAll = width + (shown + 1 == columns ? 0 : std::strlen(gap)) <= maxWidth;
            if (!areAll)
                return;
            (isLast ? last : first).push_back(std::move(column));
        }
    }
};

std::string tableText(hvArray_tag const& array)
{
    ShownRows const rows(array.get_dimensions()[0]);
    ShownColumns const columns(array, rows);
    return rows.lines([&](std::size_t i) {
        std::string line;
        for (Column const& column : columns.first)
            line += column.padded(i);
        if (!columns.areAll)
            line += gap;
        for (auto column = columns.last.rbegin(); column != columns.last.rend(); ++column)
            line += column->padded(i);
        line.resize(line.find_last_not_of(' ') + 1);
        return line;
    });
}

std::string charactersText(hvArray_tag const& array)
{
    ShownRows const rows(array.get_dimensions()[0]);
    return rows.lines([&](std::size_t i) { return "  " + quoteText(rowOf(array, rows[i]), maxCharacters); });
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

std::string sizeAndClass(hvArray_tag const* array)
{
    return shapeText(*array) + ' ' + className(array);
}

std::string arrayText(lua_State* L, hvArray_tag const& array)
{
    Hvm::Scope const scope(HostContext::of(L).hvm());
    hvClassID const classID = array._get_class_id_non_trivial();
    bool const isText = classID == hvCHAR_CLASS || classID == hvSTRING_CLASS;
    if (std::string text = plainText(array); !text.empty() || (isText && array.get_number_of_elements() == 1))
        return text;
    if (array.get_number_of_elements() == 0 || classID == orbis::host_extensions::functionClass)
        return sizeAndClass(&array);
    return sizeAndClass(&array) + (classID == hvCHAR_CLASS ? charactersText(array) : tableText(array));
}

} // namespace velmara::console
