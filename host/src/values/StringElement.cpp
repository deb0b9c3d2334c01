#include "values/StringElement.hpp"

#include "values/TextMemory.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace velmara {

StringElement::StringElement(std::u16string_view text)
{
    if (text.size() > mostShort) [[unlikely]]
        makeLong(text);
    else
        makeShort(text);
}

void StringElement::makeShort(std::u16string_view text)
{
    short_.tag = static_cast<char16_t>(text.size() + 1);
    std::ranges::copy(text, short_.units);
    short_.units[text.size()] = u'\0';
}

StringElement::StringElement(StringElement const& other)
{
    if (other.isLong())
        makeLong(other.view());
    else
        short_ = other.short_;
}

StringElement& StringElement::operator=(StringElement other) noexcept
{
    static_assert(sizeof(Short) == sizeof(StringElement));
    std::byte mine[sizeof(Short)];
    std::memcpy(mine, &short_, sizeof mine);
    std::memcpy(&short_, &other.short_, sizeof mine);
    std::memcpy(&other.short_, mine, sizeof mine);
    return *this;
}

void StringElement::makeLong(std::u16string_view text)
{
    auto* const units = allocateText<char16_t>(text.size());
    std::ranges::copy(text, units);
    long_ = {longText, text.size(), units};
}

void StringElement::freeLong() noexcept
{
    std::free(long_.text);
}

} // namespace velmara
