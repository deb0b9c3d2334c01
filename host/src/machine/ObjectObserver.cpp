#include "additions/ObjectObserver.hpp"

#include "api/HvmState.hpp"

namespace orbis::additions {

void observeObjects(ObjectObserver* observer) noexcept
{
    if (velmara::HvmState* const machine = velmara::HvmState::current())
        machine->setObserver(observer);
}

void requestCallBoundary() noexcept
{
    if (velmara::HvmState* const machine = velmara::HvmState::current())
        machine->requestCallBoundary();
}

} // namespace orbis::additions
