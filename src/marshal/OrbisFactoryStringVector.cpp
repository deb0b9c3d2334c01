#include "marshal/OrbisFactoryStringVector.hpp"

#include "orbis/factory/base/argumentErrors.hpp"
#include "orbis/factory/types/unicodeStringContainers.hpp"

#include "libhv/libhv.hpp"

namespace orbis::factory {

using Strings = HostDataType<std::vector<fl::ustring>>;

bool OrbisFactoryStringVector::holdSame(hvArray* a, hvArray* b) const
{
    return Strings::fromHost(a) == Strings::fromHost(b);
}

std::uint32_t OrbisFactoryStringVector::compareValues(COSValue a, COSValue b) const
{
    return isEqualValue(a, b) ? 0 : unordered;
}

std::size_t OrbisFactoryStringVector::valueByteSize(COSValue value) const
{
    std::size_t size = 0;
    for (fl::ustring const& string : Strings::fromHost(value.array()))
        size += (string.size() + 1) * sizeof(char16_t);
    return size;
}

void OrbisFactoryStringVector::Conversion::convertToHost(hvArray** out, hvArray* value)
{
    *out = value ? hvCreateSharedDataCopy(value) : hvCreateCellMatrix(0, 0);
}

void OrbisFactoryStringVector::Conversion::convertFromHost(hvArray** out, hvArray* in)
{
    if (in && in->_get_class_id_non_trivial() != hvCELL_CLASS && !hvIsA(in, "string"))
        errorMustBeCellArray();
    *out = in ? hvCreateSharedCopyNotOnArrayList(in) : nullptr;
}

} // namespace orbis::factory
