#include "names/NameTable.hpp"

#include "memory/allocate.hpp"
#include "text/textHash.hpp"

#include <memory>
#include <mutex>
#include <new>

namespace velmara {

constinit NameTable nameTable;

namespace {

/// Held by whoever adds a name. Never destroyed, as names are.
std::mutex& writing()
{
    static auto& mutex = *new std::mutex;
    return mutex;
}

/// The record and its NUL-terminated text in one piece.
Name createName(std::string_view text, std::uint64_t hash)
{
    void* memory = allocate(sizeof(orbis::InternedName) + text.size() + 1);
    char* copy = static_cast<char*>(memory) + sizeof(orbis::InternedName);
    text.copy(copy, text.size());
    copy[text.size()] = '\0';
    return new (memory) orbis::InternedName{hash, text.size(), copy};
}

} // namespace

Name NameTable::find(Slots const& slots, std::string_view text, std::uint64_t hash)
{
    for (std::size_t index = hash;; ++index) {
        Name const name = slots.first[index & slots.mask].load(std::memory_order_acquire);
        if (!name || (name->hash == hash && name->view() == text))
            return name;
    }
}

void NameTable::insert(Slots& slots, Name name)
{
    std::size_t index = name->hash & slots.mask;
    while (slots.first[index].load(std::memory_order_relaxed))
        index = (index + 1) & slots.mask;
    slots.first[index].store(name, std::memory_order_release);
}

Name NameTable::add(std::string_view text, std::uint64_t hash)
{
    std::scoped_lock lock(writing());
    Slots& slots = *slots_.load(std::memory_order_relaxed);
    if (Name const known = find(slots, text, hash))
        return known;
    if (2 * (count_ + 1) > slots.mask + 1)
        grow();
    Name const name = createName(text, hash);
    insert(*slots_.load(std::memory_order_relaxed), name);
    ++count_;
    return name;
}

void NameTable::grow()
{
    Slots& old = *slots_.load(std::memory_order_relaxed);
    std::size_t const capacity = 2 * (old.mask + 1);
    std::unique_ptr<Slot[]> slots(new Slot[capacity]());
    auto larger = std::make_unique<Slots>(Slots{capacity - 1, slots.get(), &old});
    for (std::size_t index = 0; index <= old.mask; ++index) {
        if (Name const name = old.first[index].load(std::memory_order_relaxed))
            insert(*larger, name);
    }
    slots.release();
    slots_.store(larger.release(), std::memory_order_release);
}

Name intern(std::string_view text)
{
    std::uint64_t const hash = hashText(text);
    Name const known = nameTable.find(text, hash);
    return known ? known : nameTable.add(text, hash);
}

Name findInterned(std::string_view text)
{
    return nameTable.find(text, hashText(text));
}

} // namespace velmara
