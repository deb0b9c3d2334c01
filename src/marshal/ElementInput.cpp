#include "orbis/factory/detail/arrays/ElementInput.hpp"

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"

#include "marshal/describeArray.hpp"

#include "host_extensions/convertNumber.hpp"
#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numberText.hpp"
#include "host_extensions/numericClasses.hpp"
#include "libhv/libhv.hpp"
#include "libkwi18n/libkwi18n.hpp"
#include "orbis/COSDataType.hpp"
#include "orbis/COSDataTypePtr.hpp"
#include "orbis/COSTypeConversion.hpp"
#include "orbis/COSTypeRepository.hpp"
#include "orbis/objectArrays.hpp"
#include "string_matrix/string_matrix.hpp"

#include <new>
#include <string>
#include <string_view>

namespace orbis::factory::detail {

using namespace host_extensions;

namespace {

constexpr std::string_view orEmpty = " or empty";

std::string withoutOrEmpty(std::string_view dataType)
{
    while (dataType.ends_with(orEmpty))
        dataType.remove_suffix(orEmpty.size());
    return std::string(dataType);
}

} // namespace

bool isNothing(hvArray_tag const* element)
{
    if (Tarnwick::String::isString(element))
        return element->get_number_of_elements() == 1 && Tarnwick::String::getString(element).isMissing(0);
    return !element || (element->_get_class_id_non_trivial() == hvDOUBLE_CLASS && element->get_dimensions()[0] == 0 &&
                        element->get_dimensions()[1] == 0);
}

namespace {

bool isText(hvArray_tag const* element)
{
    if (Tarnwick::String::isString(element))
        return element->get_number_of_elements() == 1 && !Tarnwick::String::getString(element).isMissing(0);
    return element && element->_get_class_id_non_trivial() == hvCHAR_CLASS && element->get_dimensions()[0] <= 1;
}

[[noreturn]] void throwNeeds(std::string const& needed, hvArray_tag const* given)
{
    throwNotConvertible("needs " + needed + ", not " + describeArray(given));
}

/// Stores the numbers of `from` in `to` as ones of class `target`.
void convertNumbers(hvArray_tag const& from, hvClassID target, void* to)
{
    std::size_t const count = from.get_number_of_elements();
    void const* const data = getData(&from);
    visitNumericClass(target, [&]<class T>(T) {
        visitNumericClass(from._get_class_id_non_trivial(), [&]<class Source>(Source) {
            for (std::size_t i = 0; i < count; ++i) {
                std::optional<T> const number = convertNumber<T>(static_cast<Source const*>(data)[i]);
                if (!number)
                    throwNotConvertible((count == 1 ? std::string() : placeOfElement(i) + ": ") +
                                        numberText(from._get_class_id_non_trivial(), data, i) + " does not fit " +
                                        numericClassOf<T>.name);
                static_cast<T*>(to)[i] = *number;
            }
        });
    });
}

/// Throws unless the array has what converts to numbers of the class, or logicals: a logical is no number.
void requireNumbers(hvArray_tag const* array, hvClassID target, char const* needed)
{
    hvClassID const given = array ? array->_get_class_id_non_trivial() : hvUNKNOWN_CLASS;
    bool const isLogical = given == target && target == hvLOGICAL_CLASS;
    if (!isNumeric(given) && !isLogical)
        throwNeeds(target == hvLOGICAL_CLASS ? "a logical" : needed, array);
}

COSValue readScalar(hvArray_tag const* element, hvClassID target)
{
    requireNumbers(element, target, "a number");
    if (element->get_number_of_elements() != 1)
        throwNeeds("one value", element);
    std::uint64_t bits = 0;
    convertNumbers(*element, target, &bits);
    return {target, bits};
}

hvArray_tag* readNumbers(hvArray_tag const* element, hvClassID target)
{
    requireNumbers(element, target, "numbers");
    std::size_t const* const size = element->get_dimensions();
    NewArray numbers(createMatrix(size[0], size[1], target));
    convertNumbers(*element, target, getWritableData(numbers.get()));
    return numbers.release();
}

/// "[]" is an empty list of anything: a list type that does not take it gets an empty cell array instead.
hvArray_tag* convertRegistered(COSTypeConversion& conversion, hvArray_tag* element, bool isVector)
{
    hvArray_tag* converted = nullptr;
    try {
        conversion.convertFromHost(&converted, element);
    } catch (std::bad_alloc const&) {
        throw;
    } catch (...) {
        if (!isVector || !isNothing(element))
            throw;
        NewArray const none(hvCreateCellMatrix(0, 0));
        conversion.convertFromHost(&converted, none.get());
    }
    return converted;
}

/// Returns the object of the enumerator with the name that `element` has; null when there is none.
hvArray_tag* readEnumerator(COSNameID const& className, hvArray_tag const* element)
{
    if (!element || element->_get_class_id_non_trivial() != hvCHAR_CLASS)
        return nullptr;
    auto const* const text = static_cast<char16_t const*>(getData(element));
    std::string const name = fl::i18n::to_string({text, element->get_number_of_elements()});
    COSInterfacePtr const enumerator = getEnumerator(className, name.c_str());
    return enumerator ? omCreateORBISScalar(enumerator) : nullptr;
}

} // namespace

ElementType::ElementType(char const* dataType)
    : name_(withoutOrEmpty(dataType).c_str()),
      isOptional_(std::string_view(dataType).ends_with(orEmpty))
{
    COSString const held = name_;
    std::string_view const name = held.c_str();
    isVector_ = name.ends_with(" vector") && name != "char vector";
    if (name == "any")
        kind_ = Kind::Any;
    else if (name == "char" || name == "char vector")
        kind_ = Kind::Text;
    for (NumericClass const& numeric : numericClasses) {
        bool const isScalar = name == numeric.scalarType;
        if (!isScalar && name != numeric.vectorType)
            continue;
        kind_ = isScalar ? Kind::Scalar : Kind::Elements;
        numericClass_ = numeric.classID;
    }
}

int ElementType::exactness(hvArray_tag const* value) const
{
    if (isNothing(value))
        return isOptional_ ? 2 : 0;
    hvClassID const given = value->_get_class_id_non_trivial();
    bool const isSingle = value->get_number_of_elements() == 1;
    if (kind_ == Kind::Text)
        return given == hvCHAR_CLASS ? 2 : 0;
    if (kind_ == Kind::Named)
        return given == hvOBJECT_CLASS && hvIsA(value, static_cast<COSString>(name_).c_str()) ? 2 : 0;
    if (given != numericClass_ || (kind_ == Kind::Scalar && !isSingle))
        return 0;
    return kind_ == Kind::Elements && isSingle ? 1 : 2;
}

ElementInput::ElementInput(ElementType const& type, hvArray_tag const* element)
{
    using Kind = ElementType::Kind;
    auto* const array = const_cast<hvArray_tag*>(element);
    if (type.isOptional_ && isNothing(element))
        return;
    if (type.kind_ == Kind::Scalar) {
        value_ = readScalar(element, type.numericClass_);
    } else if (type.kind_ == Kind::Elements && element && element->_get_class_id_non_trivial() != type.numericClass_) {
        value_ = COSValue(readNumbers(element, type.numericClass_));
        isOwned_ = true;
    } else if (type.kind_ == Kind::Text && !isText(element)) {
        throwNeeds("a text", element);
    } else if (type.kind_ == Kind::Named) {
        convertNamed(type, element);
    } else {
        value_ = COSValue(array);
    }
}

ElementInput::~ElementInput()
{
    if (registered_) {
        try {
            COSDataTypePtr const type(static_cast<COSString>(*registered_).c_str());
            if (type)
                type->releaseValue(value_);
        } catch (...) { // of foreign code, for which there is nobody to tell
        }
    } else if (isOwned_) {
        hvDestroyArray(value_.array());
    }
}

void ElementInput::convertNamed(ElementType const& type, hvArray_tag const* element)
{
    auto* const array = const_cast<hvArray_tag*>(element);
    if (COSTypeConversion* const conversion = COSTypeRepository::getConversion("any", type.name_)) {
        value_ = COSValue(convertRegistered(*conversion, array, type.isVector_));
        registered_ = &type.name_;
    } else if (hvArray_tag* const enumerator = readEnumerator(type.name_, element)) {
        value_ = COSValue(enumerator);
        isOwned_ = true;
    } else if (!isNothing(element) && !omIsORBIS(element)) {
        throwNeeds("an object of class \"" + std::string(static_cast<COSString>(type.name_).c_str()) + '"', element);
    } else if (!type.isVector_ && element && element->get_number_of_elements() > 1) {
        throwNeeds("one object", element);
    } else if (omIsORBIS(element)) {
        value_ = COSValue(array);
    }
}

} // namespace orbis::factory::detail
