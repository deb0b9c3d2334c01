#include "machine/Machine.hpp"

#include "errors/hostError.hpp"

#include "host_extensions/ObjectObserver.hpp"
#include "host_extensions/host_extensions.hpp"

namespace velmara {

Machine& Machine::required()
{
    if (!current_)
        throwHostError("VELMARA:hvm", "noVirtualMachine");
    return *current();
}

void Machine::reportLeak(char const* sentence) const noexcept
{
    try {
        if (leakReport_)
            leakReport_(sentence);
    } catch (...) {
    }
}

void Machine::recordOrigins(OriginSource source)
{
    origins_.recordBy(std::move(source));
    isBoundarySlow_ = isBoundaryRequested_ || origins_.isRecording();
    watchThread();
}

Machine* Machine::recording() noexcept
{
    if (!OriginTable::isAnyRecording())
        restoreThreadCache();
    return current() && current()->origins_.isRecording() ? current() : nullptr;
}

void Machine::retire(std::unique_ptr<Retirable> unpublished) noexcept
{
    if (unpublished)
        retired_.add(std::move(unpublished));
    if (entries_ == 0)
        retired_.destroyAll();
}

void Machine::clearStorage()
{
    isStorageActive_ = false;
    observer_ = nullptr;
    storage_.clear();
}

void Machine::passCallBoundary() noexcept
{
    watchThread();
    if (!isBoundaryRequested_ || entries_ != 0 || !observer_)
        return;
    isBoundaryRequested_ = false;
    isBoundarySlow_ = origins_.isRecording();
    Entry const entry(*this);
    observer_->callBoundary();
}

} // namespace velmara

namespace orbis::host_extensions {

using velmara::Machine;

bool reportsLeaks()
{
    Machine const* const machine = Machine::current();
    return machine && machine->reportsLeaks();
}

void reportLeak(char const* sentence) noexcept
{
    if (Machine const* const machine = Machine::current())
        machine->reportLeak(sentence);
}

void observeObjects(ObjectObserver* observer) noexcept
{
    if (Machine* const machine = Machine::current())
        machine->setObserver(observer);
}

void requestCallBoundary() noexcept
{
    if (Machine* const machine = Machine::current())
        machine->requestCallBoundary();
}

void addMessages(char const* catalog, std::span<Message const> messages)
{
    velmara::MessageCatalog& texts = Machine::required().messages();
    for (Message const& message : messages)
        texts.add(catalog, message.key, message.text);
}

} // namespace orbis::host_extensions
