#include "arrays/StringArrayView.hpp"

#include "arrays/arrayArguments.hpp"
#include "errors/hostError.hpp"

#include <new>

namespace velmara {

StringArrayView const& StringArrayView::of(Array const& strings)
{
    static_assert(sizeof(StringArrayView) <= Array::inlineCapacity);
    return *new (strings.scratch()) StringArrayView(strings);
}

StringElement const& StringArrayView::element(std::size_t index) const
{
    if (index >= array_->size()) [[unlikely]]
        throwIndexOutside(*array_, index);
    return array_->strings()[index];
}

std::size_t StringArrayView::getNumberOfElements() const
{
    return array_->size();
}

bool StringArrayView::isMissing(std::size_t index) const
{
    return element(index).isMissing();
}

char16_t const* StringArrayView::getText(std::size_t index) const
{
    return element(index).text();
}

std::size_t StringArrayView::getLength(std::size_t index) const
{
    return element(index).length();
}

char16_t const* StringArrayView::getElement(std::size_t index) const
{
    if (char16_t const* const text = element(index).text())
        return text;
    throwHostError("VELMARA:string", "MissingNotSupported");
}

} // namespace velmara
