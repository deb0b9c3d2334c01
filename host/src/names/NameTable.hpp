#pragma once

#include "names/InternedName.hpp"

#include <atomic>

namespace velmara {

/// All interned names of the process, by open addressing. Readers take no lock: a name is published by one store
/// into its slot, and a larger table by one store of its address. Names and outgrown tables are never freed: a
/// reader may be using them, and names outlive every virtual machine.
class NameTable {
public:
    constexpr NameTable() = default;
    NameTable(NameTable const&) = delete;
    NameTable& operator=(NameTable const&) = delete;

    /// Null when there is no such name yet.
    Name find(std::string_view text, std::uint64_t hash) const
    {
        return find(*slots_.load(std::memory_order_acquire), text, hash);
    }

    /// Adds the name unless another thread did meanwhile.
    Name add(std::string_view text, std::uint64_t hash);

private:
    using Slot = std::atomic<Name>;

    struct Slots {
        std::size_t mask;
        Slot* first;
        Slots* outgrown;
    };

    static constexpr std::size_t firstCapacity = 1024;

    static Name find(Slots const& slots, std::string_view text, std::uint64_t hash);
    static void insert(Slots& slots, Name name);
    void grow();

    Slot firstSlots_[firstCapacity] = {};
    Slots first_{firstCapacity - 1, firstSlots_, nullptr};
    std::atomic<Slots*> slots_ = &first_;
    std::size_t count_ = 0;
};

extern constinit NameTable nameTable;

} // namespace velmara
