#include "system/ScalarConversion.hpp"

#include "system/scalarClasses.hpp"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <concepts>
#include <limits>
#include <utility>

namespace velmara {

namespace {

/// True when the whole number has no more significant bits than the floating type holds.
template <std::floating_point T>
bool isExactIn(std::integral auto number)
{
    auto magnitude = static_cast<std::uint64_t>(number);
    if (number < 0)
        magnitude = 0 - magnitude;
    return magnitude == 0 || std::bit_width(magnitude >> std::countr_zero(magnitude)) <= std::numeric_limits<T>::digits;
}

bool isWhole(double number)
{
    return std::isfinite(number) && std::trunc(number) == number;
}

template <class T>
bool convertNumber(std::integral auto number, T& out)
{
    if constexpr (std::same_as<T, bool>) {
        out = number != 0;
        return number == 0 || number == 1;
    } else if constexpr (std::integral<T>) {
        out = static_cast<T>(number);
        return std::in_range<T>(number);
    } else {
        out = static_cast<T>(number);
        return isExactIn<T>(number);
    }
}

template <class T>
bool convertNumber(double number, T& out)
{
    if constexpr (std::same_as<T, double>) {
        out = number;
        return true;
    } else if constexpr (std::same_as<T, float>) {
        if (!std::isfinite(number)) {
            out = static_cast<float>(number);
            return true;
        }
        if (std::fabs(number) > std::numeric_limits<float>::max())
            return false;
        out = static_cast<float>(number);
        return isWhole(number) ? static_cast<double>(out) == number : out != 0;
    } else if constexpr (std::same_as<T, bool>) {
        out = number != 0;
        return number == 0 || number == 1;
    } else {
        // Both bounds are powers of two, so they are exact; a NaN compares false.
        constexpr auto lowest = static_cast<double>(std::numeric_limits<T>::min());
        constexpr double beyond = 2.0 * static_cast<double>(std::uint64_t(1) << (std::numeric_limits<T>::digits - 1));
        if (!(number >= lowest && number < beyond)) // NOLINT(readability-simplify-boolean-expr): NaN
            return false;
        out = static_cast<T>(number);
        return static_cast<double>(out) == number;
    }
}

bool isNumeric(hvClassID classID)
{
    return classID >= hvDOUBLE_CLASS && classID <= hvUINT64_CLASS;
}

Fit refuse(Array const&, orbis::COSValue&)
{
    return noFit;
}

template <class Source, class T>
Fit convert(Array const& input, orbis::COSValue& out)
{
    if (input.rows() != 1 || input.columns() != 1)
        return noFit;
    Source const number = *static_cast<Source const*>(input.elements());
    if constexpr (std::same_as<Source, T>) {
        out = orbis::COSValue(number);
        return exactFit;
    } else {
        T converted;
        bool const fits = [&] {
            if constexpr (std::floating_point<Source>)
                return convertNumber(static_cast<double>(number), converted);
            else
                return convertNumber(number, converted);
        }();
        if (!fits)
            return noFit;
        out = orbis::COSValue(converted);
        return convertedFit;
    }
}

constexpr std::size_t classCount = hvOBJECT_CLASS + 1;
using ConverterRow = std::array<ScalarConverter, classCount>;

template <class T>
constexpr ConverterRow makeRow()
{
    ConverterRow row;
    row.fill(refuse);
    auto const add = [&row]<class Source>(Source) {
        if constexpr (!std::same_as<Source, bool> || std::same_as<T, bool>) // a logical is no number
            row[orbis::COSValue::classOf<Source>()] = convert<Source, T>;
    };
    for (auto classID = std::uint32_t(hvDOUBLE_CLASS); classID <= hvUINT64_CLASS; ++classID)
        withScalarType(hvClassID(classID), add);
    add(bool());
    return row;
}

template <class T>
constexpr ConverterRow rowTo = makeRow<T>();

std::string textOf(Array const& input)
{
    return withScalarType(input.classID(), [&]<class T>(T) {
        char text[32];
        T const number = *static_cast<T const*>(input.elements());
        if constexpr (std::same_as<T, bool>)
            return std::string(number ? "true" : "false");
        else if (std::floating_point<T> && std::isnan(static_cast<double>(number)))
            return std::string("NaN"); // its sign means nothing
        else
            return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
    });
}

std::string rangeText(hvClassID target)
{
    return withScalarType(target, []<class T>(T) {
        return std::to_string(std::numeric_limits<T>::lowest()) + " to " +
               std::to_string(std::numeric_limits<T>::max());
    });
}

} // namespace

ScalarConverter const* scalarConverters(hvClassID target)
{
    return withScalarType(target, []<class T>(T) { return rowTo<T>.data(); });
}

std::string explainScalarRefusal(hvClassID target, Array const& input)
{
    std::string const targetName(arrayClass(target).name);
    if (input.rows() != 1 || input.columns() != 1)
        return "needs one value, not " + std::to_string(input.rows()) + "-by-" + std::to_string(input.columns());
    if (target == hvLOGICAL_CLASS)
        return isNumeric(input.classID()) ? "needs true, false, 0 or 1, not " + textOf(input)
                                          : "needs a logical, not " + std::string(input.className());
    if (!isNumeric(input.classID()))
        return "needs a number, not " + std::string(input.className());
    double converted = 0;
    bool const isReal = withScalarType(input.classID(), [&]<class T>(T) {
        converted = static_cast<double>(*static_cast<T const*>(input.elements()));
        return std::floating_point<T>;
    });
    bool const isIntegerTarget = target >= hvINT8_CLASS && target <= hvUINT64_CLASS;
    if (isIntegerTarget && isReal && std::isfinite(converted) && !isWhole(converted))
        return textOf(input) + " is no whole number";
    if (isIntegerTarget)
        return textOf(input) + " is not in the range " + rangeText(target);
    if (target == hvSINGLE_CLASS && isReal && !isWhole(converted))
        return textOf(input) + " is not in the range of single";
    return textOf(input) + " cannot be represented exactly as " + targetName;
}

} // namespace velmara
