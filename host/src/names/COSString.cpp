#include "orbis/COSString.hpp"

namespace orbis {

COSString::COSString(char const* text) : text_(text ? text : "") {}

COSString::COSString(COSString const&) = default;
COSString& COSString::operator=(COSString const&) = default;
COSString::~COSString() = default;

char const* COSString::c_str() const
{
    return text_.c_str();
}

bool COSString::operator==(COSString const& other) const = default;

} // namespace orbis
