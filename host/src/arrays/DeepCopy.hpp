#pragma once

#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace velmara {

class Array;
class Payload;

/// Creates one deep copy. Payloads that occur several times in the source are copied once. Takes no stack for nested
/// cells.
class DeepCopy {
public:
    Array* create(Array const& source);

private:
    struct Release {
        void operator()(Array* array) const noexcept;
    };
    using Owner = std::unique_ptr<Array, Release>;

    /// The cells of an array, and those of its copy, which are still empty.
    struct Open {
        std::span<Array* const> from;
        Array** to;
    };

    Owner copy(Array const& source);
    Owner copyPayload(Array const& source);

    std::vector<Open> open_;
    std::unordered_map<Payload const*, Payload*> copies_;
};

} // namespace velmara
