#include "libkwfoundation_usm/Detail.hpp"

#include "machine/Machine.hpp"

namespace foundation::usm {

using velmara::Machine;
using HvmDetail = Detail<scope::Hvm>;

std::uint64_t HvmDetail::getNextID(std::type_info const&)
{
    return velmara::HvmStorage::nextID();
}

HvmDetail::Holder* HvmDetail::find(std::uint64_t id, std::type_info const& type)
{
    Machine* const machine = Machine::current();
    return machine ? machine->storage().find(id, type) : nullptr;
}

HvmDetail::Holder& HvmDetail::findOrInsert(std::uint64_t id, std::type_info const& type, Holder&& value)
{
    return Machine::required().storage().findOrInsert(id, type, std::move(value));
}

HvmDetail::Holder& HvmDetail::insert(std::uint64_t id, std::type_info const& type, Holder&& value)
{
    return Machine::required().storage().insert(id, type, std::move(value));
}

bool HvmDetail::erase(std::uint64_t id, std::type_info const& type)
{
    Machine* const machine = Machine::current();
    return machine && machine->storage().erase(id, type);
}

bool HvmDetail::isRequiredContextActive()
{
    Machine const* const machine = Machine::current();
    return machine && machine->isStorageActive();
}

} // namespace foundation::usm
