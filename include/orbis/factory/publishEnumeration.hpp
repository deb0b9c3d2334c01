#pragma once

#include "orbis/factory/Module.hpp"
#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/NamedEnumeration.hpp"
#include "orbis/factory/types/EnumClassArrayPolicy.hpp"
#include "orbis/factory/types/EnumClassPolicy.hpp"

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <type_traits>
#include <vector>

namespace orbis::factory {

namespace detail {

ORBIS_FACTORY_API void publishEnumeration(Module& module, NamedEnumeration& named, char const* name,
                                          std::vector<EnumerationRecord::Entry> const& entries, char const* text);

} // namespace detail

/// Publishes the enumeration `E`, which needs no `HostEnumeration` then, under a name without dots:
///
///     publishEnumeration<Color>(module, "Color", {{"Red", Color::Red}, {"Green", Color::Green}}, "Of a lamp");
///
/// The names of the enumerators are literals: they are not copied. A value with two names reaches scripts under the
/// first. Sources that use the enumeration in what they publish include this header, too. Throws an `Exception` if the
/// enumeration has another name already, or two enumerators have one name.
template <class E>
void publishEnumeration(Module& module, char const* name, std::initializer_list<Enumerator<E>> enumerators,
                        char const* text = "")
{
    static_assert(std::is_enum_v<E>, "This is no enumeration: publish a class with Module::publish.");
    static_assert(!PublishedEnumeration<E>, "The enumeration has a HostEnumeration, which names it: publish it with an "
                                            "EnumerationClassInfo, or remove its HostEnumeration.");
    static_assert(!std::is_same_v<std::underlying_type_t<E>, std::uint64_t>,
                  "The values of a published enumeration fit a signed integer of 64 bits.");
    std::vector<EnumerationRecord::Entry> entries;
    entries.reserve(enumerators.size());
    for (Enumerator<E> const& enumerator : enumerators)
        entries.push_back({enumerator.name, static_cast<std::int64_t>(enumerator.value)});
    detail::publishEnumeration(module, detail::namedEnumerationOf<E>(), name, entries, text);
}

template <class E>
    requires(std::is_enum_v<E> && !PublishedEnumeration<E>)
struct MarshalingPolicy<E> {
    using Type = EnumClassPolicy;
};

template <class E>
    requires(std::is_enum_v<E> && !PublishedEnumeration<E>)
struct MarshalingPolicy<std::vector<E>> {
    using Type = EnumClassArrayPolicy;
};

} // namespace orbis::factory
