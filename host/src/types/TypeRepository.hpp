#pragma once

#include "names/NameMap.hpp"

#include "orbis/COSDataType.hpp"
#include "orbis/COSTypeConversion.hpp"

#include <memory>

namespace velmara {

/// The registered data types and conversions of one virtual machine, "unicodeString" among them from the start, and
/// the host's other data types and those of classes, which are created when they are first needed.
class TypeRepository {
public:
    /// Tells whether a class of that full name is published in the current virtual machine.
    using ClassQuery = bool (*)(Name fullName);

    explicit TypeRepository(ClassQuery isClass);
    TypeRepository(TypeRepository const&) = delete;
    TypeRepository& operator=(TypeRepository const&) = delete;
    ~TypeRepository() { clear(); }

    /// A registered type, or null.
    orbis::COSDataType* findRegistered(Name name) const;

    /// The type of that name: a registered one, the host's own, or one of a published class; null when there is
    /// none. Classes are looked up in the current virtual machine.
    orbis::COSDataType* obtain(Name name);

    void add(std::unique_ptr<orbis::COSDataType> type);
    void remove(Name name);

    void addConversion(Name from, Name to, std::unique_ptr<orbis::COSTypeConversion> conversion);
    void removeConversion(Name from, Name to);
    orbis::COSTypeConversion* findConversion(Name from, Name to) const;

    /// Drops the data types of a class that is no longer published. Needs no memory.
    void forgetClass(Name className) noexcept;
    void clear();

private:
    /// The repository's own reference to a data type.
    struct Release {
        void operator()(orbis::COSDataType* type) const { type->releaseReference(); }
    };
    using Held = std::unique_ptr<orbis::COSDataType, Release>;

    struct Entry {
        Held type;
        bool isRegistered = false;
        bool isPermanent = false; ///< registered by the host itself
    };

    bool isPermanent(Name name) const;

    ClassQuery isClass_;

    NameMap<Entry> types_;
    NameMap<NameMap<std::unique_ptr<orbis::COSTypeConversion>>> conversions_; ///< by target, then by source
};

} // namespace velmara
