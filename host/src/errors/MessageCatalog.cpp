#include "errors/MessageCatalog.hpp"

#include "errors/hostMessages.hpp"

#include <charconv>

namespace velmara {

constinit thread_local MessageSource* MessageSource::current_ = nullptr;

namespace {

std::string fullID(std::string_view catalog, std::string_view key)
{
    std::string id;
    id.reserve(catalog.size() + 1 + key.size());
    return id.append(catalog).append(":").append(key);
}

} // namespace

void MessageCatalog::add(std::string_view catalog, std::string_view key, std::string_view text)
{
    texts_.insert_or_assign(fullID(catalog, key), std::string(text));
}

char const* MessageCatalog::find(std::string_view catalog, std::string_view key) const
{
    if (texts_.empty())
        return findHostMessage(catalog, key);
    auto const found = texts_.find(fullID(catalog, key));
    return found != texts_.end() ? found->second.c_str() : findHostMessage(catalog, key);
}

std::string messageText(char const* catalog, char const* key, std::vector<std::string> const& arguments)
{
    MessageSource* const source = MessageSource::current();
    char const* const text = source ? source->messages().find(catalog, key) : findHostMessage(catalog, key);
    return text ? fillPlaceholders(text, arguments) : fullID(catalog, key);
}

std::string fillPlaceholders(std::string_view text, std::vector<std::string> const& arguments)
{
    std::string filled;
    filled.reserve(text.size() + 64);
    for (std::size_t brace; (brace = text.find('{')) != text.npos;) {
        filled += text.substr(0, brace);
        text.remove_prefix(brace);
        std::size_t number = 0;
        auto const [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), number);
        bool const isPlaceholder = error == std::errc() && end != text.data() + text.size() && *end == '}';
        if (isPlaceholder && number < arguments.size()) {
            filled += arguments[number];
            text.remove_prefix(std::size_t(end + 1 - text.data()));
        } else {
            filled += '{';
            text.remove_prefix(text.starts_with("{{") ? 2 : 1);
        }
    }
    return filled += text;
}

} // namespace velmara
