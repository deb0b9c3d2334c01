#include "types/ScalarConversion.hpp"

#include "host_extensions/convertNumber.hpp"
#include "host_extensions/numberText.hpp"
#include "host_extensions/numericClasses.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstring>
#include <limits>

namespace velmara {

using namespace orbis::host_extensions;

namespace {

ConversionRank convertNone(void const*, orbis::COSValue&)
{
    return notConvertible;
}

template <class Source, class T>
ConversionRank convert(void const* element, orbis::COSValue& out)
{
    Source number;
    std::memcpy(&number, element, sizeof number);
    if constexpr (std::same_as<Source, T>) {
        out = orbis::COSValue(number);
        return exactRank;
    } else {
        std::optional<T> const converted = convertNumber<T>(number);
        if (!converted)
            return notConvertible;
        out = orbis::COSValue(*converted);
        return convertedRank;
    }
}

using ConverterRow = std::array<ScalarConverter, classCount>;

template <class T>
constexpr ConverterRow makeRow()
{
    ConverterRow row;
    row.fill(convertNone);
    auto const add = [&row]<class Source>(Source) {
        if constexpr (!std::same_as<Source, bool> || std::same_as<T, bool>) // a logical is no number
            row[orbis::COSValue::classOf<Source>()] = convert<Source, T>;
    };
    for (NumericClass const& source : numericClasses)
        visitNumericClass(source.classID, add);
    return row;
}

template <class T>
constexpr ConverterRow rowTo = makeRow<T>();

std::string rangeText(hvClassID target)
{
    return visitNumericClass(target, []<class T>(T) {
        return std::to_string(std::numeric_limits<T>::lowest()) + " to " +
               std::to_string(std::numeric_limits<T>::max());
    });
}

} // namespace

ScalarConverter const* scalarConverters(hvClassID target)
{
    return visitNumericClass(target, []<class T>(T) { return rowTo<T>.data(); });
}

std::string numberText(Array const& input, std::size_t index)
{
    return orbis::host_extensions::numberText(input.classID(), input.elements(), index);
}

std::string scalarMismatchReason(hvClassID target, Array const& input)
{
    std::string const targetName(arrayClass(target).name);
    bool const isLogicalTarget = target == hvLOGICAL_CLASS;
    bool const isOfKind = isNumeric(input.classID()) || (isLogicalTarget && input.classID() == hvLOGICAL_CLASS);
    if (!isOfKind)
        return (isLogicalTarget ? "needs a logical, not " : "needs a number, not ") + std::string(input.className());
    if (!input.isScalar())
        return "needs one value, not " + input.sizeText();
    if (isLogicalTarget)
        return "needs true, false, 0 or 1, not " + numberText(input);
    double converted = 0;
    bool const isReal = visitNumericClass(input.classID(), [&]<class T>(T) {
        converted = static_cast<double>(*static_cast<T const*>(input.elements()));
        return std::floating_point<T>;
    });
    bool const isIntegerTarget = target >= hvINT8_CLASS && target <= hvUINT64_CLASS;
    if (isIntegerTarget && isReal && std::isfinite(converted) && std::trunc(converted) != converted)
        return numberText(input) + " is no whole number";
    if (isIntegerTarget)
        return numberText(input) + " is not in the range " + rangeText(target);
    if (target == hvSINGLE_CLASS)
        return numberText(input) + " is not in the range of single";
    return numberText(input) + " cannot be represented exactly as " + targetName;
}

} // namespace velmara
