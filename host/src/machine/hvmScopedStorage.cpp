#include "api/HvmState.hpp"
#include "machine/HvmStorage.hpp"
#include "machine/storageIDs.hpp"

#include <atomic>

namespace foundation::usm {

using velmara::HvmState;
using HvmDetail = Detail<scope::Hvm>;

namespace {
constinit std::atomic<std::uint64_t> idsGiven = 0;
} // namespace

std::uint64_t HvmDetail::getNextID(std::type_info const&)
{
    return idsGiven.fetch_add(1, std::memory_order_relaxed);
}

HvmDetail::Holder* HvmDetail::find(std::uint64_t id, std::type_info const& type)
{
    HvmState* const machine = HvmState::current();
    return machine ? machine->storage().find(id, type) : nullptr;
}

HvmDetail::Holder& HvmDetail::findOrInsert(std::uint64_t id, std::type_info const& type, Holder&& value)
{
    return HvmState::required().storage().findOrInsert(id, type, std::move(value));
}

HvmDetail::Holder& HvmDetail::insert(std::uint64_t id, std::type_info const& type, Holder&& value)
{
    return HvmState::required().storage().insert(id, type, std::move(value));
}

bool HvmDetail::erase(std::uint64_t id, std::type_info const& type)
{
    HvmState* const machine = HvmState::current();
    return machine && machine->storage().erase(id, type);
}

bool HvmDetail::isRequiredContextActive()
{
    HvmState const* const machine = HvmState::current();
    return machine && machine->isStorageActive();
}

} // namespace foundation::usm

namespace velmara {

bool isStorageID(std::uint64_t id)
{
    return id < foundation::usm::idsGiven.load(std::memory_order_relaxed);
}

} // namespace velmara
