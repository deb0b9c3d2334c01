#pragma once

#include <new>
#include <utility>

namespace orbis::factory {

/// Throws, in place of the exception that is being handled, an error that says which member could not be published, and
/// why. `owner` is the full name of its class, or null.
[[noreturn]] void throwNotPublished(char const* owner, char const* member);

/// Runs `publishMember`; its failure names the member, but for a shortage of memory.
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
