#include "velmara/Error.hpp"

#include <utility>

namespace velmara {

struct Error::Texts {
    std::string identifier;
    std::string text;
    std::vector<ErrorField> fields = {};
    std::shared_ptr<Error const> cause = {};
    std::string what = identifier + ": " + text;
};

Error::Error(std::string identifier, std::string text)
    : texts_(std::make_shared<Texts const>(Texts{std::move(identifier), std::move(text)}))
{
}

Error::Error(std::string identifier, std::string text, std::vector<ErrorField> fields)
    : texts_(std::make_shared<Texts const>(Texts{std::move(identifier), std::move(text), std::move(fields)}))
{
}

Error::Error(Error const& error, std::shared_ptr<Error const> cause)
    : texts_(std::make_shared<Texts const>(
          Texts{error.texts_->identifier, error.texts_->text, error.texts_->fields, std::move(cause)}))
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

std::vector<ErrorField> const& Error::fields() const
{
    return texts_->fields;
}

Error const* Error::cause() const
{
    return texts_->cause.get();
}

char const* Error::what() const noexcept
{
    return texts_->what.c_str();
}

} // namespace velmara
