#include "dispatch/mismatchReason.hpp"

#include "arrays/Array.hpp"
#include "classes/PackageTree.hpp"
#include "dispatch/enumeratorConversion.hpp"
#include "dispatch/objectRank.hpp"
#include "errors/errorTranslation.hpp"
#include "types/ElementConversion.hpp"
#include "types/ScalarConversion.hpp"
#include "types/TypeRepository.hpp"

#include "libkwi18n/libkwi18n.hpp"
#include "orbis/COSTypeConversion.hpp"

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

/// "needs one of Red, Green, not 'Purple'"
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

std::string conversionMismatchReason(orbis::COSDataType& type, orbis::COSTypeConversion& conversion, hvArray_tag* input)
{
    hvArray_tag* converted = nullptr;
    try {
        conversion.convertFromHost(&converted, input);
        type.releaseValue(orbis::COSValue(converted));
    } catch (...) {
        rethrowIfOutOfMemory();
        return currentErrorText();
    }
    return "was refused";
}

std::string textMismatchReason(Array const& array)
{
    if (array.classID() == hvCHAR_CLASS)
        return "needs one row of text";
    if (array.classID() != hvSTRING_CLASS)
        return "needs text, not " + std::string(array.className());
    return array.size() == 1 ? "needs text, not a missing string" : "needs one text, not several strings or none";
}

/// The first element of cells or objects that is no `wanted`; empty where all are, or `input` holds neither.
std::string elementMismatchReason(Name wanted, Array const& input)
{
    bool const areCells = input.classID() == hvCELL_CLASS;
    for (std::size_t i = 0; (areCells || input.classID() == hvOBJECT_CLASS) && i < input.size(); ++i) {
        std::string given;
        if (areCells && !input.cells()[i])
            given = "an empty cell";
        else if (areCells && firstObjectRank(wanted, *input.cells()[i]) == notConvertible)
            given = input.cells()[i]->className();
        else if (Object const* const object = areCells ? nullptr : input.objects()[i])
            given = classRank(object->className(), wanted) == notConvertible ? object->className()->view()
                                                                             : std::string_view();
        if (!given.empty())
            return elementPlace(i) + "needs " + wanted->string() + ", not " + given;
    }
    return {};
}

} // namespace

std::string mismatchReason(TypeReference const& type, hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    std::string const given(array.className());
    std::string const wanted(type.name->view());
    if (type.kind == TypeKind::Scalar)
        return scalarMismatchReason(type.scalarClass, array);
    if (type.kind == TypeKind::Elements)
        return elementsMismatchReason(type.scalarClass, array);
    if (type.kind == TypeKind::Optional)
        return mismatchReason(*type.value, input);
    if (type.kind == TypeKind::Text)
        return textMismatchReason(array);
    if (type.kind == TypeKind::Function)
        return "needs a function, not " + (array.isEmptyDouble() ? std::string("[]") : given);
    Machine& machine = Machine::required();
    if (orbis::COSDataType* const registered = machine.types().findRegistered(type.name)) {
        auto* const conversion = machine.types().findConversion(anyTypeName(), type.name);
        return conversion ? conversionMismatchReason(*registered, *conversion, input) : "nothing converts to " + wanted;
    }
    if (!machine.packages().findPublishedClass(type.element ? type.element : type.name))
        return "no data type or class " + wanted + " is known";
    if (Class const* const enumeration = findEnumeration(type))
        return type.element ? enumeratorsMismatchReason(*enumeration, array)
                            : enumeratorMismatchReason(*enumeration, array);
    if (!type.element && array.classID() == hvOBJECT_CLASS && array.size() > 1)
        return "needs one object, not " + array.sizeText();
    std::string element = type.element ? elementMismatchReason(type.element, array) : std::string();
    if (!element.empty())
        return element;
    return "needs " + wanted + ", not " + given;
}

} // namespace velmara
