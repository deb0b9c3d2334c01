#pragma once

#include <cstddef>
#include <cstdint>

namespace velmara {

/// The elements of arrays that share their data, behind a plain reference count. Whoever removes the last reference
/// destroys the elements.
class alignas(16) Payload {
public:
    /// Memory for `count` elements of `size` bytes, with one reference. Throws `bad_alloc`, also when there cannot be
    /// so many.
    static Payload* create(std::size_t count, std::size_t size);

    /// The same, all zero.
    static Payload* createZeroed(std::size_t count, std::size_t size);

    /// The same with the bytes of `source`, which holds as many.
    static Payload* createCopy(void const* source, std::size_t count, std::size_t size);

    static Payload* of(void* elements) { return static_cast<Payload*>(elements) - 1; }

    void* elements() { return this + 1; }

    bool isShared() const { return references_ > 1; }
    void addReference() { ++references_; }
    bool removeReference() { return --references_ == 0; } ///< true when it was the last one
    void free();

private:
    static Payload* withOneReference(void* memory);

    std::size_t references_;
};

} // namespace velmara
