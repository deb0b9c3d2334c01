#pragma once

#include <new>
#include <utility>

namespace orbis::factory {

/// Replaces the exception being handled: throws an error that names the member that could not be published, and the
/// reason. `owner` is the full name of its class, or null.
[[noreturn]] void throwNotPublished(char const* owner, char const* member);

/// Runs `publishMember`, and names the member in its errors, except for exhausted memory.
template <class F>
void publishing(char const* owner, char const* member, F&& publishMember)
{
    try {
        std::forward<F>(publishMember)();
    } catch (std::bad_alloc const&) {
        throw;
    } catch (...) {
        throwNotPublished(owner, member);
    }
}

} // namespace orbis::factory
