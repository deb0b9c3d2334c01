#pragma once

#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace velmara {

class Array;
class Payload;

/// One deep copy in the making. Payloads that occur several times in the source are copied once.
class DeepCopy {
public:
    Array* make(Array const& source);

private:
    struct Release {
        void operator()(Array* array) const noexcept;
    };
    using Owner = std::unique_ptr<Array, Release>;

    /// A cell array whose copy's cells are still empty.
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
