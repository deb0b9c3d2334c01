#include "samples/BasicTypes.hpp"

#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"

namespace orbis::factory::samples {

BasicTypes* BasicTypes::form()
{
    return &basic::HvmScoped<BasicTypes>::get();
}

void BasicTypes::clear()
{
    *this = BasicTypes();
}

std::int32_t BasicTypes::bytes(std::string_view text)
{
    return static_cast<std::int32_t>(text.size());
}

std::int32_t BasicTypes::units(std::u16string_view text)
{
    return static_cast<std::int32_t>(text.size());
}

BasicTypesWrapper::BasicTypesWrapper()
    : HandleClassInfo(HostClass<BasicTypes>::name, "A form with a field of every type of number and text")
{
}

void BasicTypesWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<BasicTypes>()
                     .staticMethod("form", &BasicTypes::form)
                     .staticMethod("bytes", &BasicTypes::bytes, "text")
                     .staticMethod("units", &BasicTypes::units, "text")
                     .method("clear", &BasicTypes::clear)
                     .property("aDouble", &BasicTypes::aDouble)
                     .property("aSingle", &BasicTypes::aSingle)
                     .property("anInt8", &BasicTypes::anInt8)
                     .property("anInt16", &BasicTypes::anInt16)
                     .property("anInt32", &BasicTypes::anInt32)
                     .property("anInt64", &BasicTypes::anInt64)
                     .property("aUint8", &BasicTypes::aUint8)
                     .property("aUint16", &BasicTypes::aUint16)
                     .property("aUint32", &BasicTypes::aUint32)
                     .property("aUint64", &BasicTypes::aUint64)
                     .property("aLogical", &BasicTypes::aLogical)
                     .property("aChar", &BasicTypes::aChar)
                     .property("aString", &BasicTypes::aString)
                     .property("aUnicodeString", &BasicTypes::aUnicodeString)
                     .property("word", &BasicTypes::word, &BasicTypes::setWord)
                     .property("unicodeWord", &BasicTypes::unicodeWord, &BasicTypes::setUnicodeWord));
}

} // namespace orbis::factory::samples
