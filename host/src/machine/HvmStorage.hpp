#pragma once

#include "libkwfoundation_usm/Detail.hpp"

#include <cstddef>
#include <list>
#include <memory>

namespace velmara {

/// The values that modules keep in one virtual machine, known by id and type. They are destroyed in the reverse order
/// of their insertion; a value being destroyed is no longer found, and its deleter may use the storage.
class HvmStorage {
public:
    using Holder = foundation::usm::Detail<foundation::usm::scope::Hvm>::Holder;

    /// A new id, one in the process. Only such ids may be stored under.
    static std::uint64_t nextID();

    HvmStorage() = default;
    HvmStorage(HvmStorage const&) = delete;
    HvmStorage& operator=(HvmStorage const&) = delete;
    ~HvmStorage() { clear(); }

    Holder* find(std::uint64_t id, std::type_info const& type) const
    {
        if (id >= idCount_) [[unlikely]]
            return nullptr;
        Entry* const first = byID_[id];
        return first->type == &type ? &first->holder : holderAmong(first, type);
    }

    Holder& findOrInsert(std::uint64_t id, std::type_info const& type, Holder&& value);
    Holder& insert(std::uint64_t id, std::type_info const& type, Holder&& value);
    bool erase(std::uint64_t id, std::type_info const& type);

    /// Destroys everything, also what deleters store meanwhile.
    void clear();

private:
    struct Entry {
        std::uint64_t id;
        std::type_info const* type;
        Holder holder;
        Entry* sameID = nullptr; ///< the next entry of this id, of another type; `none_` after the last
        std::list<Entry>::iterator position = {};
    };

    /// The entry of that type from `first` on: one id may be used with several types, and one type may have several
    /// addresses.
    Entry* entryAmong(Entry* first, std::type_info const& type) const;
    [[gnu::noinline]] Holder* holderAmong(Entry* first, std::type_info const& type) const;

    void growTo(std::size_t idCount);
    Holder& store(std::list<Entry>& created);
    void remove(Entry& entry);

    Entry none_{.id = 0, .type = nullptr, .holder = Holder(nullptr, nullptr)}; ///< for ids without an entry
    std::list<Entry> inOrder_;
    std::unique_ptr<Entry*[]> byID_; ///< no vector, whose size would be computed at every access
    std::size_t idCount_ = 0;
};

} // namespace velmara
