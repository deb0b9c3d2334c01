#include "velmara/Error.hpp"

#include <utility>

namespace velmara {

Error::Error(std::string identifier, std::string text)
    : identifier_(std::move(identifier)),
      text_(std::move(text)),
      what_(identifier_ + ": " + text_)
{
}

Error::Error(Error const&) = default;
Error::~Error() = default;

std::string const& Error::identifier() const
{
    return identifier_;
}

std::string const& Error::text() const
{
    return text_;
}

char const* Error::what() const noexcept
{
    return what_.c_str();
}

} // namespace velmara
