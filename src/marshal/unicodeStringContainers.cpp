#include "orbis/factory/types/unicodeStringContainers.hpp"

#include "orbis/factory/base/argumentErrors.hpp"
#include "orbis/factory/base/extractString.hpp"
#include "orbis/factory/detail/arrays/textCells.hpp"

#include "libhv/libhv.hpp"

#include <utility>

namespace orbis::factory {

Marshaler<DataTypePolicy>& Marshaler<DataTypePolicy>::operator=(Marshaler const&) = default;

Marshaler<DataTypePolicy>& Marshaler<DataTypePolicy>::operator=(Marshaler&&) = default;

namespace {

hvArray* makeText(fl::ustring const& string)
{
    return hvCreateString_UTF16(string.c_str());
}

} // namespace

hvArray* HostDataType<std::vector<fl::ustring>>::toHost(std::vector<fl::ustring> const& strings)
{
    return detail::makeTextCells(strings, makeText);
}

std::vector<fl::ustring> HostDataType<std::vector<fl::ustring>>::fromHost(hvArray* value)
{
    if (isStringVector(value))
        return extractFromStringVector(value);
    std::vector<fl::ustring> strings;
    if (value)
        detail::readTextCells(
            value, [&](std::size_t count) { strings.reserve(count); },
            [&](std::u16string_view text) { strings.emplace_back(text); });
    return strings;
}

hvArray* HostDataType<std::set<fl::ustring>>::toHost(std::set<fl::ustring> const& strings)
{
    return detail::makeTextCells(strings, makeText);
}

std::set<fl::ustring> HostDataType<std::set<fl::ustring>>::fromHost(hvArray* value)
{
    std::set<fl::ustring> strings;
    auto const insert = [&](fl::ustring&& text) {
        auto const place = strings.lower_bound(text);
        if (place != strings.end() && *place == text)
            errorNoDuplicates(fl::i18n::to_string(text));
        strings.insert(place, std::move(text));
    };
    if (isStringVector(value)) {
        for (fl::ustring& text : extractFromStringVector(value))
            insert(std::move(text));
    } else if (value) {
        detail::readTextCells(
            value, [](std::size_t) {}, [&](std::u16string_view text) { insert(fl::ustring(text)); });
    }
    return strings;
}

} // namespace orbis::factory
