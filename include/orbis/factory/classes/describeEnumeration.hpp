#pragma once

#include "orbis/factory/base/refusals.hpp"
#include "orbis/factory/classes/EnumerationRecord.hpp"
#include "orbis/factory/classes/HostEnumeration.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace orbis::factory::detail {

template <class E>
consteval bool namesAreProper()
{
    auto const& enumerators = HostEnumeration<E>::enumerators;
    for (std::size_t i = 0; i < std::size(enumerators); ++i) {
        if (!enumerators[i].name || !*enumerators[i].name)
            return false;
        for (std::size_t j = 0; j < i; ++j)
            if (std::string_view(enumerators[i].name) == enumerators[j].name)
                return false;
    }
    return true;
}

template <class E>
consteval bool valuesFit()
{
    constexpr std::uint64_t maxValue = std::numeric_limits<std::int64_t>::max();
    for (Enumerator<E> const& enumerator : HostEnumeration<E>::enumerators)
        if (std::is_unsigned_v<std::underlying_type_t<E>> && static_cast<std::uint64_t>(enumerator.value) > maxValue)
            return false;
    return true;
}

template <class E>
consteval Refusal enumerationRefusal()
{
    if (!namesAreProper<E>())
        return Refusal::EnumeratorNames;
    return valuesFit<E>() ? Refusal::None : Refusal::EnumeratorValues;
}

template <class E>
consteval auto enumerationEntries()
{
    std::array<EnumerationRecord::Entry, std::size(HostEnumeration<E>::enumerators)> entries{};
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i] = {HostEnumeration<E>::enumerators[i].name,
                      static_cast<std::int64_t>(HostEnumeration<E>::enumerators[i].value)};
    return entries;
}

/// Stable: entries of equal value keep their order. (`std::stable_sort` is not constexpr.)
template <class Entries>
consteval Entries sortedByValue(Entries entries)
{
    for (std::size_t i = 1; i < entries.size(); ++i)
        for (std::size_t j = i; j > 0 && entries[j].value < entries[j - 1].value; --j)
            std::swap(entries[j], entries[j - 1]);
    return entries;
}

template <class E>
inline constexpr auto enumerationEntriesOf = enumerationEntries<E>();

template <class E>
inline constexpr auto enumerationEntriesByValue = sortedByValue(enumerationEntriesOf<E>);

/// The record of a native enumeration, made at compile time.
template <PublishedEnumeration E>
inline constexpr EnumerationRecord enumerationRecord{HostEnumeration<E>::name, enumerationEntriesOf<E>,
                                                     enumerationEntriesByValue<E>};

/// How to reach what is known of a native enumeration.
template <class E>
struct EnumerationOf;

template <PublishedEnumeration E>
struct EnumerationOf<E> {
    static constexpr EnumerationRecord const& record() { return enumerationRecord<E>; }
    static constexpr char const* name() { return HostEnumeration<E>::name; }

    /// The data type of vectors.
    static char const* vectorText()
    {
        static std::string const text = detail::dataTypeTextWith(name(), " vector");
        return text.c_str();
    }
};

} // namespace orbis::factory::detail
