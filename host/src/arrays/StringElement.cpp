#include "arrays/StringElement.hpp"

namespace velmara {

StringElement::StringElement(StringElement const& other)
{
    if (other.isLong())
        storeLong(other.view());
    else
        short_ = other.short_;
}

void StringElement::storeLong(std::u16string_view text)
{
    auto* const units = TextAllocator::allocate<char16_t>(text.size());
    text.copy(units, text.size());
    long_ = {longText, text.size(), units};
}

} // namespace velmara
