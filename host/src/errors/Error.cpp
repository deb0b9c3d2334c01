#include "velmara/Error.hpp"

#include <utility>

namespace velmara {

struct Error::Texts {
    std::string identifier;
    std::string text;
    std::string what = identifier + ": " + text;
};

Error::Error(std::string identifier, std::string text)
    : texts_(std::make_shared<Texts const>(Texts{std::move(identifier), std::move(text)}))
{
}

Error::Error(Error const&) noexcept = default;
Error::~Error() = default;

Error const& Error::outOfMemory()
{
    static Error const error("VELMARA:memory:exhausted", "There is not enough memory.");
    return error;
}

std::string const& Error::identifier() const
{
    return texts_->identifier;
}

std::string const& Error::text() const
{
    return texts_->text;
}

char const* Error::what() const noexcept
{
    return texts_->what.c_str();
}

} // namespace velmara
