#include "orbis/factory/base/extractString.hpp"
#include "orbis/factory/types/UnicodeStringPolicy.hpp"

#include "marshal/stringScalar.hpp"

#include "orbis/COSTypeConversion.hpp"
#include "orbis/COSTypeRepository.hpp"
#include "string_matrix/string_matrix.hpp"

#include <memory>

namespace orbis::factory {

Marshaler<UnicodeStringPolicy>& Marshaler<UnicodeStringPolicy>::operator=(Marshaler const&) = default;

Marshaler<UnicodeStringPolicy>& Marshaler<UnicodeStringPolicy>::operator=(Marshaler&&) = default;

fl::ustring extractString(hvArray* array)
{
    COSTypeConversion* const conversion = COSTypeRepository::getConversion("any", "unicodeString");
    if (!conversion)
        errorRequireString();
    hvArray* value = nullptr; // in fact a `fl::ustring*`: the values of "unicodeString" are no arrays
    conversion->convertFromHost(&value, array);
    std::unique_ptr<fl::ustring> const text(reinterpret_cast<fl::ustring*>(value));
    return std::move(*text);
}

bool isStringVector(hvArray* array)
{
    return Tarnwick::String::isString(array);
}

std::vector<fl::ustring> extractFromStringVector(hvArray* array)
{
    Tarnwick::StringArray const& strings = Tarnwick::String::getString(array);
    std::size_t const count = strings.getNumberOfElements();
    std::vector<fl::ustring> present;
    present.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (char16_t const* const text = strings.getText(i))
            present.emplace_back(text, strings.getLength(i));
    }
    return present;
}

} // namespace orbis::factory
