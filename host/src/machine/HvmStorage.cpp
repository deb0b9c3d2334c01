#include "machine/HvmStorage.hpp"

#include "errors/hostError.hpp"

#include <algorithm>
#include <atomic>
#include <utility>

namespace velmara {

namespace {
constinit std::atomic<std::uint64_t> givenIDs = 0;
} // namespace

std::uint64_t HvmStorage::nextID()
{
    return givenIDs.fetch_add(1, std::memory_order_relaxed);
}

HvmStorage::Entry* HvmStorage::entryAmong(Entry* first, std::type_info const& type) const
{
    while (first != &none_ && *first->type != type)
        first = first->sameID;
    return first != &none_ ? first : nullptr;
}

HvmStorage::Holder* HvmStorage::holderAmong(Entry* first, std::type_info const& type) const
{
    Entry* const entry = entryAmong(first, type);
    return entry ? &entry->holder : nullptr;
}

HvmStorage::Holder& HvmStorage::findOrInsert(std::uint64_t id, std::type_info const& type, Holder&& value)
{
    Holder* const stored = find(id, type);
    return stored ? *stored : insert(id, type, std::move(value));
}

HvmStorage::Holder& HvmStorage::insert(std::uint64_t id, std::type_info const& type, Holder&& value)
{
    // What may fail comes first: then the value stays the caller's, and the one before stays stored.
    if (id >= givenIDs.load(std::memory_order_relaxed))
        throwHostError("VELMARA:hvm", "unknownStorageID", {std::to_string(id)});
    if (id >= idCount_)
        growTo(id + 1);
    std::list<Entry> created;
    created.push_back({id, &type, Holder(nullptr, value.get_deleter())});
    created.front().holder = std::move(value);
    while (erase(id, type)) {
    }
    return store(created);
}

void HvmStorage::growTo(std::size_t idCount)
{
    auto larger = std::make_unique<Entry*[]>(idCount);
    std::fill_n(std::copy_n(byID_.get(), idCount_, larger.get()), idCount - idCount_, &none_);
    byID_ = std::move(larger);
    idCount_ = idCount;
}

HvmStorage::Holder& HvmStorage::store(std::list<Entry>& created)
{
    Entry& entry = created.front();
    entry.position = created.begin();
    entry.sameID = byID_[entry.id];
    byID_[entry.id] = &entry;
    inOrder_.splice(inOrder_.end(), created);
    return entry.holder;
}

bool HvmStorage::erase(std::uint64_t id, std::type_info const& type)
{
    Entry* const entry = id < idCount_ ? entryAmong(byID_[id], type) : nullptr;
    if (entry)
        remove(*entry);
    return entry != nullptr;
}

void HvmStorage::clear()
{
    while (!inOrder_.empty())
        remove(inOrder_.back());
}

void HvmStorage::remove(Entry& entry)
{
    Entry** link = &byID_[entry.id];
    while (*link != &entry)
        link = &(*link)->sameID;
    *link = entry.sameID;
    // The deleter runs when nothing of the entry is left in the storage.
    std::list<Entry> removed;
    removed.splice(removed.end(), inOrder_, entry.position);
}

} // namespace velmara
