#include "dispatch/ConvertedInputs.hpp"

#include "classes/Class.hpp"
#include "dispatch/directRank.hpp"
#include "dispatch/enumeratorConversion.hpp"
#include "dispatch/objectRank.hpp"
#include "errors/errorTranslation.hpp"
#include "types/ElementConversion.hpp"
#include "types/TypeRepository.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "orbis/COSTypeConversion.hpp"

#include <memory>

namespace velmara {

namespace {

/// Throws what the conversion throws. "[]" is an empty list of anything: a list type that does not take it gets an
/// empty cell array instead.
hvArray_tag* convert(TypeReference const& type, orbis::COSTypeConversion& conversion, hvArray_tag* input)
{
    hvArray_tag* converted = nullptr;
    try {
        conversion.convertFromHost(&converted, input);
    } catch (...) {
        rethrowIfOutOfMemory();
        if (!type.element || !Array::of(input)->isEmptyDouble())
            throw;
        ArrayPtr const none(hvCreateCellMatrix(0, 0));
        conversion.convertFromHost(&converted, none.get());
    }
    return converted;
}

} // namespace

void ConvertedInputs::grow(std::size_t capacity)
{
    more_ = new More(capacity);
    values_ = more_->values.data();
}

void ConvertedInputs::own(orbis::COSDataType* type, hvArray_tag* value)
{
    values_[count_] = orbis::COSValue(value);
    owned()[ownedCount_++] = {type, values_[count_]};
}

ConversionRank ConvertedInputs::addSelf(TypeReference const& type, hvArray_tag* self)
{
    Array const& array = *Array::of(self);
    Object::requireUsable(Machine::required(), array.objects());
    ConversionRank const rank =
        type.kind == TypeKind::Named && !type.element ? firstObjectRank(type.name, array) : notConvertible;
    if (rank == notConvertible)
        return add(type, self);
    addAsIs(self);
    return rank;
}

ConversionRank ConvertedInputs::addArray(TypeReference const& type, hvArray_tag* input)
{
    if (Array::of(input)->classID() == hvOBJECT_CLASS)
        Object::requireUsable(Machine::required(), Array::of(input)->objects());
    ConversionRank rank = directRank(type, *Array::of(input));
    if (type.kind == TypeKind::Optional)
        return addOptional(type, input);
    values_[count_] = orbis::COSValue(input);
    if (rank == notConvertible && type.kind == TypeKind::Text)
        rank = addString(input);
    else if (rank == notConvertible && type.kind == TypeKind::Elements)
        rank = addElements(type, input);
    else if (rank == notConvertible && type.kind == TypeKind::Named)
        rank = addNamed(type, input);
    if (rank != notConvertible)
        ++count_;
    return rank;
}

ConversionRank ConvertedInputs::addString(hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    if (array.classID() != hvSTRING_CLASS || array.size() != 1 || array.strings().front().isMissing())
        return notConvertible;
    own(nullptr, orbis::host_extensions::createText(array.strings().front().view()));
    return convertedRank;
}

ConversionRank ConvertedInputs::addElements(TypeReference const& type, hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    hvArray_tag* const converted = convertElements(type.scalarClass, array).release();
    if (!converted)
        return notConvertible;
    own(nullptr, converted);
    return array.isScalar() ? convertedRank - 1 : convertedRank;
}

ConversionRank ConvertedInputs::addOptional(TypeReference const& type, hvArray_tag* input)
{
    if (!Array::of(input)->isEmptyDouble() && !Array::of(input)->isMissingString())
        return add(*type.value, input);
    values_[count_++] = orbis::COSValue();
    return convertedRank;
}

ConversionRank ConvertedInputs::addNamed(TypeReference const& type, hvArray_tag* input)
{
    Array const& array = *Array::of(input);
    ConversionRank rank = notConvertible;
    if (array.classID() == hvOBJECT_CLASS && !type.element)
        rank = objectRank(type.name, array);
    if (rank == notConvertible && Machine::required().types().findRegistered(type.name))
        return addRegistered(type, input);
    if (rank == notConvertible)
        rank = type.element ? objectVectorRank(type.element, array) : objectRank(type.name, array);
    return rank == notConvertible ? addEnumeration(type, input) : rank;
}

ConversionRank ConvertedInputs::addEnumeration(TypeReference const& type, hvArray_tag* input)
{
    Class const* const enumeration = findEnumeration(type);
    if (!enumeration || Array::of(input)->classID() == hvOBJECT_CLASS)
        return notConvertible;
    if (!type.element) {
        Enumerator const* const found = findEnumerator(*enumeration, *Array::of(input));
        if (found)
            values_[count_] = orbis::COSValue(found->object.get());
        return found ? convertedRank : notConvertible;
    }
    hvArray_tag* const converted = toEnumerators(*enumeration, *Array::of(input)).release();
    if (!converted)
        return notConvertible;
    own(nullptr, converted);
    return converted->get_number_of_elements() == 1 ? convertedRank - 1 : convertedRank;
}

ConversionRank ConvertedInputs::addRegistered(TypeReference const& type, hvArray_tag* input)
{
    TypeRepository const& types = Machine::required().types();
    orbis::COSDataType* const dataType = types.findRegistered(type.name);
    orbis::COSTypeConversion* const conversion = types.findConversion(anyTypeName(), type.name);
    if (!conversion)
        return dataType->isVELMARAArrayType() ? convertedRank : notConvertible;
    hvArray_tag* converted = nullptr;
    try {
        converted = convert(type, *conversion, input);
    } catch (...) {
        rethrowIfOutOfMemory();
        return notConvertible; // `mismatchReason` tells why
    }
    dataType->getReference(); // it may be unregistered before its value is released
    own(dataType, converted);
    return type.element && Array::of(input)->isScalar() ? convertedRank - 1 : convertedRank;
}

void ConvertedInputs::release()
{
    std::unique_ptr<More> const freed(more_);
    while (ownedCount_ > 0) {
        Owned const& owned = this->owned()[--ownedCount_];
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

} // namespace velmara
