#include "dispatch/enumeratorMismatch.hpp"

#include "classes/Class.hpp"
#include "dispatch/enumeratorConversion.hpp"
#include "types/ElementConversion.hpp"
#include "types/ScalarConversion.hpp"

#include "libkwi18n/libkwi18n.hpp"

namespace velmara {

namespace {

std::string quoted(std::u16string_view text)
{
    return "'" + fl::i18n::to_string(std::u16string(text)) + "'";
}

std::string stringText(StringElement const& text)
{
    return text.isMissing() ? "a missing string" : quoted(text.view());
}

std::string describeGiven(Array const& input);

std::string describeElement(Array const& input, std::size_t index)
{
    if (input.classID() == hvSTRING_CLASS)
        return stringText(input.strings()[index]);
    if (input.classID() != hvCELL_CLASS)
        return numberText(input, index);
    return input.cells()[index] ? describeGiven(*input.cells()[index]) : "an empty cell";
}

std::string describeGiven(Array const& input)
{
    if (input.isEmptyDouble())
        return "[]";
    if (input.classID() == hvOBJECT_CLASS && input.size() == 1 && !input.objects().front())
        return "a null object";
    if (input.classID() == hvCHAR_CLASS && input.rows() <= 1)
        return quoted(input.text());
    if (input.size() == 1 && isListOfEnumerators(input) && input.classID() != hvCELL_CLASS)
        return describeElement(input, 0);
    return std::string(input.className()) + " " + input.sizeText();
}

} // namespace

std::string enumeratorMismatchReason(Class const& enumeration, Array const& input)
{
    return "needs one of " + enumeration.contents().enumerators.names() + ", not " + describeGiven(input);
}

std::string enumeratorsMismatchReason(Class const& enumeration, Array const& input)
{
    std::string const reason = "needs one of " + enumeration.contents().enumerators.names() + ", not ";
    for (std::size_t i = 0; isListOfEnumerators(input) && i < input.size(); ++i)
        if (!findEnumeratorAt(enumeration, input, i))
            return elementPlace(i) + reason + describeElement(input, i);
    return reason + describeGiven(input);
}

} // namespace velmara
