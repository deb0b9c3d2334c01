#include "orbis/factory/base/String.hpp"

namespace orbis::factory {

String::String(char const* text) : text_(text) {}

String::String(std::string const& text) : text_(text) {}

String::String(String const&) = default;

String& String::operator=(String const&) = default;

String::~String() = default;

String::operator char const*() const
{
    return text_.c_str();
}

} // namespace orbis::factory
