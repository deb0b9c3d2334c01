#include "arrays/StringArrayView.hpp"
#include "arrays/arrayArguments.hpp"

#include "host_extensions/host_extensions.hpp"

using namespace velmara;

namespace orbis::host_extensions {

hvArray* createStringMatrix(std::size_t m, std::size_t n)
{
    return Array::create(hvSTRING_CLASS, m, n);
}

void setString(hvArray_tag* strings, std::size_t index, std::u16string_view text)
{
    Array& array = requireString(strings, index);
    StringElement element(text); // first: the text may be that of an element
    array.writableString(index).swap(element);
}

void setMissing(hvArray_tag* strings, std::size_t index)
{
    requireString(strings, index).writableString(index) = StringElement();
}

} // namespace orbis::host_extensions

namespace Tarnwick {

bool String::isString(hvArray_tag const* array)
{
    return array && Array::of(array)->classID() == hvSTRING_CLASS;
}

StringArray const& String::getString(hvArray_tag const* array)
{
    return StringArrayView::of(requireStrings(array));
}

} // namespace Tarnwick
