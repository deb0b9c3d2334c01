#include "api/HvmState.hpp"

#include "additions/additions.hpp"

namespace orbis::additions {

bool reportsLeaks()
{
    velmara::HvmState const* const machine = velmara::HvmState::current();
    return machine && machine->reportsLeaks();
}

void reportLeak(char const* text) noexcept
{
    if (velmara::HvmState const* const machine = velmara::HvmState::current())
        machine->reportLeak(text);
}

} // namespace orbis::additions
