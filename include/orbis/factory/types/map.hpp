#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/MapEntries.hpp"
#include "orbis/factory/marshaling/elements.hpp"
#include "orbis/factory/types/StringPolicy.hpp"
#include "orbis/factory/types/UnicodeStringPolicy.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <concepts>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace orbis::factory {

namespace detail {

template <class K>
concept MapKey = COSScalar<K> || std::same_as<K, std::string> || std::same_as<K, fl::ustring>;

template <MapKey K>
std::string placeOfKey(K const& key)
{
    if constexpr (COSScalar<K>) {
        char text[32];
        return "key " + std::string(text, std::to_chars(text, text + sizeof text, +key).ptr);
    } else if constexpr (std::same_as<K, std::string>) {
        return "key \"" + key + '"';
    } else {
        return "key \"" + fl::i18n::to_string(key) + '"';
    }
}

/// Calls `function`, and names the key in its errors.
template <MapKey K, class F>
void atKey(K const& key, F&& function)
{
    try {
        std::forward<F>(function)();
    } catch (...) {
        rethrowAt(placeOfKey(key));
    }
}

} // namespace detail

/// `std::map` and `std::unordered_map` of texts or numbers to any type that crosses. Passed to the host as a cell array
/// with a row for each entry, key and value, in the order of the keys. From the host it takes such an array, a numeric
/// one of two columns, or a list of lists of two; a console's table with text keys becomes one. Errors name the key;
/// one that is there twice is refused.
class MapPolicy {};

template <>
class Marshaler<MapPolicy> : public detail::DataTypeName<Marshaler<MapPolicy>> {
    template <class Map>
    using Key = typename Map::key_type;

    template <class Map>
    using Value = typename Map::mapped_type;

public:
    template <class Map, class V>
    static void toHost(V&& map, hvArray** out)
    {
        using Entry = std::remove_reference_t<decltype(*map.begin())>;
        std::vector<Entry*> entries;
        entries.reserve(map.size());
        for (Entry& entry : map)
            entries.push_back(&entry);
        std::sort(entries.begin(), entries.end(), [](Entry* a, Entry* b) { return a->first < b->first; });
        std::size_t const count = entries.size();
        detail::NewCells cells(count, 2);
        for (std::size_t i = 0; i < count; ++i) {
            cells.set(i, detail::elementToHost<Key<Map>>(entries[i]->first));
            if constexpr (std::is_lvalue_reference_v<V>)
                cells.set(count + i, detail::elementToHost<Value<Map>>(entries[i]->second));
            else
                cells.set(count + i, detail::elementToHost<Value<Map>>(std::move(entries[i]->second)));
        }
        *out = cells.release();
    }

    template <class Map>
    static Map fromHost(hvArray_tag const* in)
    {
        detail::ElementReader<Key<Map>> const keys;
        detail::ElementReader<Value<Map>> const values;
        detail::MapEntries entries(in);
        Map map;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            Key<Map> key = detail::atElement(i, [&] {
                entries.select(i);
                return keys.read(entries.key());
            });
            detail::atKey(key, [&] {
                if constexpr (std::floating_point<Key<Map>>)
                    if (std::isnan(key))
                        detail::throwNotConvertible("it has no place among others");
                if (!map.emplace(key, values.read(entries.value())).second)
                    detail::throwNotConvertible("it is there twice");
            });
        }
        return map;
    }

    template <class Map>
    static constexpr char const* dataTypeText()
    {
        return "any";
    }

    template <class Map>
    static consteval bool isList()
    {
        return true;
    }

    template <class Map>
    static consteval bool isView()
    {
        return detail::isView<Value<Map>>();
    }
};

namespace detail {

template <class K, class V>
struct MapRefusals : ElementRefusals<V> {
    static constexpr Refusal refusal = MapKey<K> ? ElementRefusals<V>::refusal : Refusal::MapKey;
};

} // namespace detail

template <class K, class V, class... Rest>
struct MarshalingPolicy<std::map<K, V, Rest...>> : detail::MapRefusals<K, V> {
    using Type = MapPolicy;
};

template <class K, class V, class... Rest>
struct MarshalingPolicy<std::unordered_map<K, V, Rest...>> : detail::MapRefusals<K, V> {
    using Type = MapPolicy;
};

} // namespace orbis::factory
