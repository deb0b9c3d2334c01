#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/classes/EnumerationRecord.hpp"
#include "orbis/factory/classes/HostEnumeration.hpp"
#include "orbis/factory/classes/describeEnumeration.hpp"

#include <atomic>
#include <span>
#include <string>
#include <type_traits>
#include <typeinfo>

namespace orbis::factory::detail {

/// What is known of an enumeration without a `HostEnumeration`, one for each enumeration and module: set once, when it
/// is published first, and kept as long as the module's code.
class ORBIS_FACTORY_API NamedEnumeration {
public:
    constexpr explicit NamedEnumeration(std::type_info const& type) : type_(type) {}
    NamedEnumeration(NamedEnumeration const&) = delete;
    NamedEnumeration& operator=(NamedEnumeration const&) = delete;
    ~NamedEnumeration();

    /// Throws `std::invalid_argument` when the enumeration is not published.
    EnumerationRecord const& record() const;

    /// The data type of vectors; throws likewise.
    char const* vectorText() const;

    /// Throws an `Exception` for a name or enumerators that differ from those it has, for two enumerators of one name,
    /// and for an empty name. Threading: on any thread.
    void describe(std::string fullName, std::span<EnumerationRecord::Entry const> entries);

private:
    struct Description;

    Description const& required() const;

    std::type_info const& type_;
    std::atomic<Description*> description_ = nullptr;
};

template <class E>
NamedEnumeration& namedEnumerationOf()
{
    static NamedEnumeration named(typeid(E));
    return named;
}

template <class E>
    requires(std::is_enum_v<E> && !PublishedEnumeration<E>)
struct EnumerationOf<E> {
    static EnumerationRecord const& record() { return namedEnumerationOf<E>().record(); }
    static char const* name() { return record().hostName; }
    static char const* vectorText() { return namedEnumerationOf<E>().vectorText(); }
};

} // namespace orbis::factory::detail
