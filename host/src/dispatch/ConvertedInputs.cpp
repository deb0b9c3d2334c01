#include "dispatch/ConvertedInputs.hpp"

#include "arrays/Array.hpp"
#include "arrays/emptyInput.hpp"
#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "dispatch/enumerationFit.hpp"
#include "dispatch/enumerationRefusal.hpp"
#include "dispatch/objectFit.hpp"
#include "errors/errorTranslation.hpp"
#include "machine/Machine.hpp"
#include "objects/Object.hpp"
#include "objects/objectValidity.hpp"
#include "types/ElementConversion.hpp"
#include "types/ScalarConversion.hpp"
#include "types/TypeRepository.hpp"

#include "additions/additions.hpp"
#include "libhv/libhv.hpp"
#include "orbis/COSTypeConversion.hpp"

#include <vector>

namespace velmara {

namespace {

bool isText(Array const& input)
{
    return input.classID() == hvCHAR_CLASS && (input.rows() == 1 || input.size() == 0);
}

bool isOneElement(Array const& input)
{
    return input.rows() == 1 && input.columns() == 1;
}

/// Throws what the conversion throws. "[]" is an empty list of whatever a list type holds: where a type does not take
/// it, the type is asked again with an empty cell array.
hvArray_tag* convert(TypeReference const& type, orbis::COSTypeConversion& conversion, hvArray_tag* input)
{
    hvArray_tag* converted = nullptr;
    try {
        conversion.convertFromHost(&converted, input);
    } catch (...) {
        rethrowShortage();
        if (!type.element || !isNothing(*Array::of(input)))
            throw;
        ArrayPtr const none(hvCreateCellMatrix(0, 0));
        conversion.convertFromHost(&converted, none.get());
    }
    return converted;
}

} // namespace

struct ConvertedInputs::Room {
    explicit Room(std::size_t capacity) : values(capacity), owned(capacity) {}

    std::vector<orbis::COSValue> values;
    std::vector<Owned> owned;
};

void ConvertedInputs::DeleteRoom::operator()(Room* room) const
{
    delete room;
}

void ConvertedInputs::makeRoom(std::size_t capacity)
{
    room_.reset(new Room(capacity));
    values_ = room_->values.data();
    owned_ = room_->owned.data();
}

Fit ConvertedInputs::addSelf(TypeReference const& type, hvArray_tag* self)
{
    Array const& array = *Array::of(self);
    checkObjects(Machine::required(), array.objects());
    Fit const fit = type.kind == TypeKind::Named && !type.element ? firstObjectFit(type.name, array) : noFit;
    if (fit == noFit)
        return add(type, self);
    addAsIs(self);
    return fit;
}

Fit ConvertedInputs::addArray(TypeReference const& type, hvArray_tag* input)
{
    if (Array::of(input)->classID() == hvOBJECT_CLASS)
        checkObjects(Machine::required(), Array::of(input)->objects());
    if (type.kind == TypeKind::Optional)
        return addOptional(type, input);
    Fit fit = noFit;
    values_[count_] = orbis::COSValue(input);
    if (type.kind == TypeKind::Text)
        fit = addText(input);
    else if (type.kind == TypeKind::Elements)
        fit = addElements(type, input);
    else if (type.kind == TypeKind::Any)
        fit = anyFit;
    else if (type.kind == TypeKind::Named)
        fit = addNamed(type, input);
    if (fit != noFit)
        ++count_;
    return fit;
}

Fit ConvertedInputs::addText(hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    if (isText(array))
        return exactFit;
    if (array.classID() != hvSTRING_CLASS || array.size() != 1 || array.strings().front().isMissing())
        return noFit;
    values_[count_] = orbis::COSValue(orbis::additions::createText(array.strings().front().view()));
    owned_[ownedCount_++] = {nullptr, values_[count_]};
    return convertedFit;
}

Fit ConvertedInputs::addElements(TypeReference const& type, hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    if (array.classID() == type.scalarClass)
        return isOneElement(array) ? exactFit - 1 : exactFit;
    hvArray_tag* const converted = convertElements(type.scalarClass, array).release();
    if (!converted)
        return noFit;
    values_[count_] = orbis::COSValue(converted);
    owned_[ownedCount_++] = {nullptr, values_[count_]};
    return isOneElement(array) ? convertedFit - 1 : convertedFit;
}

Fit ConvertedInputs::addOptional(TypeReference const& type, hvArray_tag* input)
{
    if (!isNothing(*Array::of(input)) && !isMissingString(*Array::of(input)))
        return add(*type.value, input);
    values_[count_++] = orbis::COSValue();
    return convertedFit;
}

Fit ConvertedInputs::addNamed(TypeReference const& type, hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    Fit fit = noFit;
    if (array.classID() == hvOBJECT_CLASS && !type.element)
        fit = objectFit(type.name, array);
    if (fit == noFit && Machine::required().types().findRegistered(type.name))
        return addRegistered(type, input);
    if (fit == noFit)
        fit = type.element ? objectVectorFit(type.element, array) : objectFit(type.name, array);
    return fit == noFit ? addEnumeration(type, input) : fit;
}

Fit ConvertedInputs::addEnumeration(TypeReference const& type, hvArray_tag* input)
{
    Class const* const enumeration = findEnumeration(type);
    if (!enumeration || Array::of(input)->classID() == hvOBJECT_CLASS)
        return noFit;
    if (!type.element) {
        Enumerator const* const found = findEnumerator(*enumeration, *Array::of(input));
        if (found)
            values_[count_] = orbis::COSValue(found->object.get());
        return found ? convertedFit : noFit;
    }
    hvArray_tag* const converted = toEnumerators(*enumeration, *Array::of(input)).release();
    if (!converted)
        return noFit;
    values_[count_] = orbis::COSValue(converted);
    owned_[ownedCount_++] = {nullptr, values_[count_]};
    return converted->get_number_of_elements() == 1 ? convertedFit - 1 : convertedFit;
}

Fit ConvertedInputs::addRegistered(TypeReference const& type, hvArray_tag* input)
{
    TypeRepository const& types = Machine::required().types();
    orbis::COSDataType* const dataType = types.findRegistered(type.name);
    orbis::COSTypeConversion* const conversion = types.findConversion(anyTypeName(), type.name);
    if (!conversion)
        return dataType->isVELMARAArrayType() ? convertedFit : noFit;
    hvArray_tag* converted = nullptr;
    try {
        converted = convert(type, *conversion, input);
    } catch (...) {
        rethrowShortage();
        return noFit; // whoever needs the reason asks for it
    }
    dataType->getReference(); // it may be unregistered before its value is given back
    values_[count_] = orbis::COSValue(converted);
    owned_[ownedCount_++] = {dataType, values_[count_]};
    return type.element && isOneElement(*Array::of(input)) ? convertedFit - 1 : convertedFit;
}

void ConvertedInputs::giveBack()
{
    while (ownedCount_ > 0) {
        Owned const& owned = owned_[--ownedCount_];
        if (!owned.type) {
            hvDestroyArray(owned.value.array());
            continue;
        }
        try {
            owned.type->releaseValue(owned.value);
        } catch (...) {
        }
        owned.type->releaseReference();
    }
}

namespace {

std::string explainConversion(orbis::COSDataType& type, orbis::COSTypeConversion& conversion, hvArray_tag* input)
{
    hvArray_tag* converted = nullptr;
    try {
        conversion.convertFromHost(&converted, input);
        type.releaseValue(orbis::COSValue(converted));
    } catch (...) {
        rethrowShortage();
        return textOfCurrentException();
    }
    return "was refused";
}

std::string explainTextRefusal(Array const& array)
{
    if (array.classID() == hvCHAR_CLASS)
        return "needs one row of text";
    if (array.classID() != hvSTRING_CLASS)
        return "needs text, not " + std::string(array.className());
    return array.size() == 1 ? "needs text, not a missing string" : "needs one text, not several strings or none";
}

std::string sizeOf(Array const& array)
{
    return std::to_string(array.rows()) + "-by-" + std::to_string(array.columns());
}

/// The first element of cells or objects that is no `wanted`; empty where all are, or `input` holds neither.
std::string explainElement(Name wanted, Array const& input)
{
    bool const areCells = input.classID() == hvCELL_CLASS;
    for (std::size_t i = 0; (areCells || input.classID() == hvOBJECT_CLASS) && i < input.size(); ++i) {
        std::string given;
        if (areCells && !input.cells()[i])
            given = "an empty cell";
        else if (areCells && firstObjectFit(wanted, *input.cells()[i]) == noFit)
            given = input.cells()[i]->className();
        else if (Object const* const object = areCells ? nullptr : input.objects()[i])
            given = classFit(object->className(), wanted) == noFit ? object->className()->view() : std::string_view();
        if (!given.empty())
            return "element " + std::to_string(i) + " (counted from 0): needs " + wanted->string() + ", not " + given;
    }
    return {};
}

} // namespace

std::string explainRefusal(TypeReference const& type, hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    std::string const given(array.className());
    std::string const wanted(type.name->view());
    if (type.kind == TypeKind::Scalar)
        return explainScalarRefusal(type.scalarClass, array);
    if (type.kind == TypeKind::Elements)
        return explainElementsRefusal(type.scalarClass, array);
    if (type.kind == TypeKind::Optional)
        return explainRefusal(*type.value, input);
    if (type.kind == TypeKind::Text)
        return explainTextRefusal(array);
    Machine& machine = Machine::required();
    if (orbis::COSDataType* const registered = machine.types().findRegistered(type.name)) {
        auto* const conversion = machine.types().findConversion(anyTypeName(), type.name);
        return conversion ? explainConversion(*registered, *conversion, input) : "nothing converts to " + wanted;
    }
    if (!machine.packages().findPublishedClass(type.element ? type.element : type.name))
        return "no data type or class " + wanted + " is known";
    if (Class const* const enumeration = findEnumeration(type))
        return type.element ? explainEnumeratorsRefusal(*enumeration, array)
                            : explainEnumeratorRefusal(*enumeration, array);
    if (!type.element && array.classID() == hvOBJECT_CLASS && array.size() > 1)
        return "needs one object, not " + sizeOf(array);
    std::string element = type.element ? explainElement(type.element, array) : std::string();
    if (!element.empty())
        return element;
    return "needs " + wanted + ", not " + given;
}

} // namespace velmara
