#pragma once

#include "names/InternedName.hpp"
#include "text/textHash.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace velmara {

/// A table from interned names to values, by open addressing. Names are compared by identity, never by text.
template <class T>
class NameMap {
public:
    struct Entry {
        Name name = nullptr;
        T value{};
    };

    bool empty() const { return size_ == 0; }
    std::size_t size() const { return size_; }

    /// The value, or null. It stays where it is until the next insertion or removal.
    T* find(Name name) { return const_cast<T*>(std::as_const(*this).find(name)); }

    T const* find(Name name) const
    {
        if (size_ == 0)
            return nullptr;
        Entry const& entry = entries_[indexOf(name)];
        return entry.name ? &entry.value : nullptr;
    }

    /// The value under a text that need not be interned. The text is compared with one name at most, but for names
    /// of one hash.
    [[gnu::always_inline]] T const* findText(std::string_view text) const
    {
        if (size_ == 0)
            return nullptr;
        std::uint64_t const hash = hashText(text);
        for (std::size_t i = hash & mask_; entries_[i].name; i = next(i))
            if (entries_[i].name->hash == hash && entries_[i].name->length == text.size() &&
                isSameText(entries_[i].name->text, text.data(), text.size())) [[likely]]
                return &entries_[i].value;
        return nullptr;
    }

    /// The value, default-constructed when it is new. Grows first: a failure changes nothing.
    T& operator[](Name name)
    {
        if ((size_ + 1) * 2 > entries_.size())
            grow();
        Entry& entry = entries_[indexOf(name)];
        if (!entry.name) {
            entry.name = name;
            ++size_;
        }
        return entry.value;
    }

    void erase(Name name)
    {
        if (size_ == 0 || !entries_[indexOf(name)].name)
            return;
        std::size_t hole = indexOf(name);
        // What follows the hole in its run moves up where it would otherwise no longer be found.
        for (std::size_t i = next(hole); entries_[i].name; i = next(i)) {
            std::size_t const wanted = entries_[i].name->hash & mask_;
            if (((i - wanted) & mask_) >= ((i - hole) & mask_)) {
                entries_[hole] = std::move(entries_[i]);
                hole = i;
            }
        }
        entries_[hole] = Entry();
        --size_;
    }

    /// The name of an entry that `matches(name, value)`, null when there is none.
    template <class Predicate>
    Name findIf(Predicate const& matches) const
    {
        for (Entry const& entry : entries_)
            if (entry.name && matches(entry.name, entry.value))
                return entry.name;
        return nullptr;
    }

    /// Calls `visit(name, value)` for every entry, in no particular order.
    template <class Visit>
    void forEach(Visit visit) const
    {
        for (Entry const& entry : entries_)
            if (entry.name)
                visit(entry.name, entry.value);
    }

private:
    std::size_t next(std::size_t i) const { return (i + 1) & mask_; }

    std::size_t indexOf(Name name) const
    {
        std::size_t i = name->hash & mask_;
        while (entries_[i].name && entries_[i].name != name)
            i = next(i);
        return i;
    }

    void grow()
    {
        std::vector<Entry> old(entries_.empty() ? 8 : entries_.size() * 2);
        std::swap(old, entries_);
        mask_ = entries_.size() - 1;
        for (Entry& entry : old)
            if (entry.name)
                entries_[indexOf(entry.name)] = std::move(entry);
    }

    std::vector<Entry> entries_; ///< a power of two, at most half full
    std::size_t mask_ = 0;       ///< their number less one
    std::size_t size_ = 0;
};

} // namespace velmara
