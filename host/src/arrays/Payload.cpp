#include "arrays/Payload.hpp"

#include "memory/allocate.hpp"

#include "libkwfl/bad_alloc.hpp"

#include <cstdlib>
#include <cstring>

namespace velmara {

namespace {

// Zeroed memory from calloc costs nothing until it is used when it is large, but too much when it is small.
constexpr std::size_t largeSize = 16384;

std::size_t sizeInBytes(std::size_t count, std::size_t size)
{
    if (count > (PTRDIFF_MAX - sizeof(Payload)) / size)
        throw foundation::core::except::bad_alloc();
    return sizeof(Payload) + count * size;
}

} // namespace

Payload* Payload::withOneReference(void* memory)
{
    auto* const payload = static_cast<Payload*>(memory);
    payload->references_ = 1;
    return payload;
}

Payload* Payload::create(std::size_t count, std::size_t size)
{
    return withOneReference(allocate(sizeInBytes(count, size)));
}

Payload* Payload::createZeroed(std::size_t count, std::size_t size)
{
    std::size_t const bytes = sizeInBytes(count, size);
    if (bytes >= largeSize) {
        if (void* const memory = std::calloc(1, bytes))
            return withOneReference(memory);
        throw foundation::core::except::bad_alloc();
    }
    Payload* const payload = withOneReference(allocate(bytes));
    std::memset(payload->elements(), 0, bytes - sizeof(Payload));
    return payload;
}

Payload* Payload::createCopy(void const* source, std::size_t count, std::size_t size)
{
    Payload* const payload = create(count, size);
    std::memcpy(payload->elements(), source, count * size);
    return payload;
}

void Payload::free()
{
    std::free(this);
}

} // namespace velmara
