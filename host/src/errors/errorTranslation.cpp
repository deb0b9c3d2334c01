#include "errors/errorTranslation.hpp"

#include "errors/MessageCatalog.hpp"

#include "velmara/Error.hpp"

#include "libkwfl/IMsgIDException.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <exception>
#include <new>
#include <optional>

namespace velmara {

namespace {

/// The text of an exception and of those that are nested in it.
std::string chainText(std::exception const& error)
{
    std::string text = error.what();
    auto const* const outer = dynamic_cast<std::nested_exception const*>(&error);
    if (outer && outer->nested_ptr()) {
        try {
            outer->rethrow_nested();
        } catch (std::exception const& nested) {
            text += ": " + chainText(nested);
        } catch (...) { // has no text
        }
    }
    return text;
}

/// Inside a handler: the current exception, which has no identifier of its own. `key` and `text` say what it is if it
/// is of no kind that a module added.
template <class Text>
Error nativeError(char const* key, Text text)
{
    MessageSource* const source = MessageSource::current();
    if (std::optional<Error> described = source ? source->errorKinds().describeCurrent() : std::nullopt)
        return *std::move(described);
    return {std::string("VELMARA:native:") + key, messageText("VELMARA:native", key, {text()})};
}

/// The error with that of the exception which is nested in the one that it describes.
template <class Exception>
Error withCause(Error const& error, Exception const& exception)
{
    auto const* const outer = dynamic_cast<std::nested_exception const*>(&exception);
    if (!outer || !outer->nested_ptr())
        return error;
    Error const cause =
        translateErrors([&]() -> Error { outer->rethrow_nested(); }, [](Error const& nested) { return nested; });
    return {error, std::make_shared<Error const>(cause)};
}

/// What `describe` returns; a shortage of memory meanwhile is the error instead.
template <class Describe>
Error described(Describe const& describe)
{
    try {
        return describe();
    } catch (std::bad_alloc const&) {
        return Error::outOfMemory();
    }
}

} // namespace

Error errorOf(foundation::core::except::IMsgIDException const& error)
{
    return described([&] {
        std::string const& identifier = error.getErrorID();
        // Not `what()`, which ends at a zero in an argument.
        return withCause({identifier.empty() ? "VELMARA:native:exception" : identifier,
                          fl::i18n::to_string(error.GetUnicodeMessageTxt())},
                         error);
    });
}

Error errorOf(foundation::core::except::IException const& error)
{
    return described(
        [&] { return withCause(nativeError("exception", [&] { return std::string(error.what()); }), error); });
}

Error errorOf(std::exception const& error)
{
    return described([&] { return withCause(nativeError("exception", [&] { return chainText(error); }), error); });
}

Error errorOf(std::nested_exception const& error)
{
    return described([&] { return withCause(nativeError("unknown", [] { return std::string(); }), error); });
}

Error errorOfUnknown()
{
    return described([&] { return nativeError("unknown", [] { return std::string(); }); });
}

Error currentError()
{
    return translateErrors([]() -> Error { throw; }, [](Error const& error) { return error; });
}

void rethrowIfOutOfMemory()
{
    try {
        throw;
    } catch (std::bad_alloc const&) {
        throw;
    } catch (...) { // the caller handles all else
    }
}

std::string currentErrorText()
{
    return currentError().text();
}

char const* currentExceptionWhat() noexcept
{
    try {
        throw;
    } catch (foundation::core::except::IException const& error) {
        return error.what();
    } catch (std::exception const& error) {
        return error.what();
    } catch (...) {
        return "something that is no exception was thrown";
    }
}

} // namespace velmara
