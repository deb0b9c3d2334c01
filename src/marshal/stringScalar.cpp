#include "marshal/stringScalar.hpp"

#include "orbis/factory/base/errorIdentities.hpp"

#include "marshal/throwError.hpp"

#include "libhv/libhv.hpp"
#include "string_matrix/string_matrix.hpp"

namespace orbis::factory {

fl::ustring readStringScalar(hvArray const* array)
{
    if (!Tarnwick::String::isString(array) || array->get_number_of_elements() != 1)
        errorRequireString();
    Tarnwick::StringArray const& strings = Tarnwick::String::getString(array);
    if (strings.isMissing(0))
        throwError(VELMARA::string::MissingNotSupported());
    return {strings.getText(0), strings.getLength(0)};
}

hvArray* stringScalarAsCharacters(hvArray const* array)
{
    return hvCreateString_UTF16(readStringScalar(array).c_str());
}

void errorRequireString()
{
    throwError(component_VELMARA::catalog_class::key_RequireString());
}

} // namespace orbis::factory
