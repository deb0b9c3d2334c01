#pragma once

#include "velmara/Error.hpp"

#include "libkwfl/IMsgIDException.hpp"

#include <exception>
#include <new>
#include <string>

namespace velmara {

/// Inside a handler: the current exception as a `velmara::Error`. One with a message identifier keeps it; `bad_alloc`
/// is `Error::outOfMemory`; others become "VELMARA:native:exception" with their text, and what is no exception at all
/// "VELMARA:native:unknown".
Error currentError();

/// Inside a handler of it: the exception as such an error.
Error errorOf(foundation::core::except::IMsgIDException const& error);
Error errorOf(foundation::core::except::IException const& error);
Error errorOf(std::exception const& error);
Error errorOf(std::nested_exception const& error);
Error errorOfUnknown();

/// Returns what `action` does. What that throws, `handle` gets as such an error, inside the exception's handler: a
/// `velmara::Error` itself as a const one, which may be of a class of its own, any other as a new one.
template <class Action, class Handle>
[[gnu::always_inline]] inline auto translateErrors(Action const& action, Handle const& handle)
{
    try {
        return action();
    } catch (Error const& error) {
        return handle(error);
    } catch (std::bad_alloc const&) {
        return handle(Error(Error::outOfMemory()));
    } catch (foundation::core::except::IMsgIDException const& error) {
        return handle(errorOf(error));
    } catch (foundation::core::except::IException const& error) {
        return handle(errorOf(error));
    } catch (std::exception const& error) {
        return handle(errorOf(error));
    } catch (std::nested_exception const& error) {
        return handle(errorOf(error));
    } catch (...) {
        return handle(errorOfUnknown());
    }
}

/// Inside a handler: rethrows `bad_alloc`, for which the code that threw it is not to blame.
void rethrowIfOutOfMemory();

/// Inside a handler: the text of that error, without its identifier.
std::string currentErrorText();

/// Inside a handler: `what()` of the current exception, valid while it is handled. Needs no memory.
char const* currentExceptionWhat() noexcept;

} // namespace velmara
