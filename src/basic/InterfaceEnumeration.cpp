#include "orbis/factory/ownership/InterfaceEnumeration.hpp"

#include "libkwfl/bad_alloc.hpp"
#include "libut/libut.hpp"

#include <atomic>
#include <cstdlib>
#include <utility>

namespace orbis::factory {

namespace {
std::atomic<std::int64_t> live{0};
} // namespace

void* InterfaceEnumeration::operator new(std::size_t size)
{
    void* const storage = std::calloc(1, size);
    if (!storage)
        throw foundation::core::except::bad_alloc();
    return storage;
}

void InterfaceEnumeration::operator delete(void* storage)
{
    utFree(storage);
}

InterfaceEnumeration::InterfaceEnumeration(COSInterface* element) : pending_(element)
{
    ++live;
}

InterfaceEnumeration::~InterfaceEnumeration()
{
    --live;
}

bool InterfaceEnumeration::hasMoreElements() const
{
    return pending_ != nullptr;
}

COSInterface* InterfaceEnumeration::nextElement()
{
    if (!pending_)
        throw ENoElements();
    return std::exchange(pending_, nullptr);
}

std::int64_t InterfaceEnumeration::liveCount()
{
    return live;
}

} // namespace orbis::factory
