#include "types/UnicodeStringType.hpp"

#include "arrays/arrayArguments.hpp"
#include "errors/hostError.hpp"
#include "types/valueOrder.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libkwi18n/libkwi18n.hpp"

namespace velmara {

namespace {

/// A value of the type; null where there is none.
fl::ustring* textOf(hvArray_tag* value)
{
    return reinterpret_cast<fl::ustring*>(value);
}

hvArray_tag* newValue(std::u16string_view text)
{
    return reinterpret_cast<hvArray_tag*>(new fl::ustring(text));
}

std::u16string_view readText(Array const& array)
{
    if (array.isText())
        return array.text();
    if (array.classID() != hvSTRING_CLASS || array.size() != 1)
        throwHostError("VELMARA:class", "RequireString");
    if (array.strings().front().isMissing())
        throwHostError("VELMARA:string", "MissingNotSupported");
    return array.strings().front().view();
}

class UnicodeStringType final : public orbis::COSDataType {
public:
    char const* cppTypeName() const override { return "fl::ustring"; }
    char const* scalarTypeName() const override { return "unicodeString"; }
    int typeKind() const override { return 1; }
    char const* typeCategory() const override { return "Fundamental"; }
    bool slot11Flag() const override { return false; }
    bool isEqualValue(orbis::COSValue a, orbis::COSValue b) const override { return compareValues(a, b) == equal; }

    std::uint32_t compareValues(orbis::COSValue a, orbis::COSValue b) const override
    {
        if (a.isEmpty() || b.isEmpty())
            return a.isEmpty() && b.isEmpty() ? equal : unordered;
        return orderOf(*textOf(a.array()), *textOf(b.array()));
    }

    std::size_t valueByteSize(orbis::COSValue value) const override
    {
        return value.isEmpty() ? 0 : (textOf(value.array())->size() + 1) * sizeof(char16_t);
    }

    orbis::COSValue copyValue(orbis::COSValue value) const override
    {
        return value.isEmpty() ? value : orbis::COSValue(newValue(*textOf(value.array())));
    }

    void releaseValue(orbis::COSValue value) const override { delete textOf(value.array()); }
};

class UnicodeStringConversion final : public orbis::COSTypeConversion {
public:
    void convertToHost(hvArray_tag** out, hvArray_tag* value) override
    {
        *out = orbis::host_extensions::createText(value ? *textOf(value) : fl::ustring());
    }

    void convertFromHost(hvArray_tag** out, hvArray_tag* in) override { *out = newValue(readText(requireArray(in))); }
};

} // namespace

orbis::COSDataType* createUnicodeStringType()
{
    return new UnicodeStringType;
}

orbis::COSTypeConversion* createUnicodeStringConversion()
{
    return new UnicodeStringConversion;
}

} // namespace velmara
