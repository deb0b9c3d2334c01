#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace orbis::factory::samples {

/// A form with a field of every number and text type. Each virtual machine owns one.
class BasicTypes : public full::Wrappable {
public:
    static BasicTypes* form();
    void clear();

    double aDouble = 0;
    float aSingle = 0;
    std::int8_t anInt8 = 0;
    std::int16_t anInt16 = 0;
    std::int32_t anInt32 = 0;
    std::int64_t anInt64 = 0;
    std::uint8_t aUint8 = 0;
    std::uint16_t aUint16 = 0;
    std::uint32_t aUint32 = 0;
    std::uint64_t aUint64 = 0;
    bool aLogical = false;
    char aChar = 0;
    std::string aString;
    fl::ustring aUnicodeString;

    /// Text types other than strings.
    char const* word() const { return aString.c_str(); }
    void setWord(char const* word) { aString = word ? word : ""; }
    char16_t const* unicodeWord() const { return aUnicodeString.c_str(); }
    void setUnicodeWord(char16_t const* word) { aUnicodeString = word ? word : u""; }

    static std::int32_t bytes(std::string_view text);
    static std::int32_t units(std::u16string_view text);
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::BasicTypes> {
    static constexpr char const* name = "orbis_factory.BasicTypes";
};

namespace orbis::factory::samples {

class BasicTypesWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    BasicTypesWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
