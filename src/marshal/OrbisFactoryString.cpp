#include "marshal/OrbisFactoryString.hpp"

#include "orbis/factory/base/extractString.hpp"

#include "marshal/stringScalar.hpp"

#include "libhv/libhv.hpp"

namespace orbis::factory {

bool OrbisFactoryString::holdSame(hvArray* a, hvArray* b) const
{
    return extractString(a) == extractString(b);
}

std::uint32_t OrbisFactoryString::compareValues(COSValue a, COSValue b) const
{
    if (bothNull(a, b))
        return 0;
    if (oneNull(a, b))
        return unordered;
    int const order = extractString(a.array()).compare(extractString(b.array()));
    return static_cast<std::uint32_t>((order > 0) - (order < 0));
}

std::size_t OrbisFactoryString::valueByteSize(COSValue value) const
{
    return value.array() ? (extractString(value.array()).size() + 1) * sizeof(char16_t) : 0;
}

void OrbisFactoryString::Conversion::convertToHost(hvArray** out, hvArray* value)
{
    *out = value ? hvCreateSharedDataCopy(value) : hvCreateString("");
}

void OrbisFactoryString::Conversion::convertFromHost(hvArray** out, hvArray* in)
{
    if (!in) {
        *out = nullptr;
        return;
    }
    if (in->_get_class_id_non_trivial() != hvCHAR_CLASS) {
        if (!hvIsA(in, "string"))
            errorRequireString();
        extractString(in); // throws for strings without text, so that dispatch tries other candidates
    }
    *out = hvCreateSharedCopyNotOnArrayList(in);
}

} // namespace orbis::factory
