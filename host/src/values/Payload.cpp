#include "values/Payload.hpp"

#include "libkwfl/bad_alloc.hpp"

#include <cstdlib>
#include <cstring>

namespace velmara {

namespace {

std::size_t sizeInBytes(std::size_t count, std::size_t size)
{
    if (count > (PTRDIFF_MAX - sizeof(Payload)) / size)
        throw foundation::core::except::bad_alloc();
    return sizeof(Payload) + count * size;
}

} // namespace

// Zeroed memory from calloc costs nothing until it is used when the matrix is large.
Payload* Payload::createZeroed(std::size_t count, std::size_t size)
{
    auto* const payload = static_cast<Payload*>(std::calloc(1, sizeInBytes(count, size)));
    if (!payload)
        throw foundation::core::except::bad_alloc();
    payload->references_ = 1;
    return payload;
}

Payload* Payload::createCopy(void const* source, std::size_t count, std::size_t size)
{
    std::size_t const bytes = sizeInBytes(count, size);
    auto* const payload = static_cast<Payload*>(std::malloc(bytes));
    if (!payload)
        throw foundation::core::except::bad_alloc();
    payload->references_ = 1;
    std::memcpy(payload->elements(), source, bytes - sizeof(Payload));
    return payload;
}

void Payload::free()
{
    std::free(this);
}

} // namespace velmara
