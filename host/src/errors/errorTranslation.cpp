#include "errors/errorTranslation.hpp"

#include "errors/MessageCatalog.hpp"

#include "velmara/Error.hpp"

#include "libkwfl/IMsgIDException.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <exception>
#include <new>

namespace velmara {

namespace {

Error translatedError()
{
    constexpr char const* native = "VELMARA:native";
    try {
        throw;
    } catch (Error const& error) {
        return error;
    } catch (std::bad_alloc const&) {
        throw;
    } catch (foundation::core::except::IMsgIDException const& error) {
        std::string const& identifier = error.getErrorID();
        // Not `what()`, which ends at a zero in an argument.
        return {identifier.empty() ? "VELMARA:native:exception" : identifier,
                fl::i18n::to_string(error.GetUnicodeMessageTxt())};
    } catch (foundation::core::except::IException const& error) {
        return {"VELMARA:native:exception", messageText(native, "exception", {error.what()})};
    } catch (std::exception const& error) {
        return {"VELMARA:native:exception", messageText(native, "exception", {error.what()})};
    } catch (...) {
        return {"VELMARA:native:unknown", messageText(native, "unknown", {})};
    }
}

} // namespace

Error currentError()
{
    try {
        return translatedError();
    } catch (std::bad_alloc const&) {
        return Error::outOfMemory();
    }
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

void rethrowAsError()
{
    try {
        throw;
    } catch (Error const&) {
        throw; // it may be of a class of its own
    } catch (...) {
        throw currentError();
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
