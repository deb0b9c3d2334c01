#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/numericArrays.hpp"
#include "orbis/factory/marshaling/elements.hpp"
#include "orbis/factory/types/unicodeStringContainers.hpp"

#include "host_extensions/numericClasses.hpp"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <set>
#include <unordered_set>
#include <utility>
#include <vector>

namespace orbis::factory {

/// `std::set` and `std::unordered_set`: a list without duplicates, which are refused with their position. Passed to the
/// host in the order of the elements, numbers as a row, others as a row of cells.
class SetPolicy {};

template <>
class Marshaler<SetPolicy> : public detail::DataTypeName<Marshaler<SetPolicy>> {
    template <class Set>
    using Element = typename Set::value_type;

public:
    template <class Set>
    static void toHost(Set const& set, hvArray** out)
    {
        using E = Element<Set>;
        std::vector<E const*> elements;
        elements.reserve(set.size());
        for (E const& element : set)
            elements.push_back(&element);
        if constexpr (std::totally_ordered<E> && !requires { typename Set::key_compare; })
            std::sort(elements.begin(), elements.end(), [](E const* a, E const* b) { return *a < *b; });
        if constexpr (COSScalar<E>) {
            detail::NewArray row(host_extensions::createMatrix(1, elements.size(), COSValue::classOf<E>()));
            auto* const data = static_cast<E*>(host_extensions::getWritableData(row.get()));
            std::transform(elements.begin(), elements.end(), data, [](E const* element) { return *element; });
            *out = row.release();
        } else {
            detail::NewCells cells(1, elements.size());
            for (std::size_t i = 0; i < elements.size(); ++i)
                cells.set(i, detail::elementToHost<E>(*elements[i]));
            *out = cells.release();
        }
    }

    template <class Set>
    static Set fromHost(hvArray_tag const* in)
    {
        using E = Element<Set>;
        Set set;
        auto const insert = [&](E element) {
            if constexpr (std::floating_point<E>)
                if (std::isnan(element))
                    detail::throwNotConvertible("NaN has no place among others");
            if (!set.insert(std::move(element)).second)
                detail::throwNotConvertible("it is there already");
        };
        if constexpr (COSScalar<E>) {
            auto const elements = detail::elementsOf<E>(in);
            for (std::size_t i = 0; i < elements.size(); ++i)
                detail::atElement(i, [&] { insert(elements[i]); });
        } else {
            detail::readElements<E>(
                in, [](std::size_t) {}, insert);
        }
        return set;
    }

    template <class Set>
    static constexpr char const* dataTypeText()
    {
        if constexpr (COSScalar<Element<Set>>)
            return host_extensions::numericClassOf<Element<Set>>.vectorType;
        else
            return "any";
    }

    template <class Set>
    static consteval bool isList()
    {
        return true;
    }

    template <class Set>
    static consteval bool isView()
    {
        return detail::isView<Element<Set>>();
    }
};

template <class E, class... Rest>
    requires(!HasHostDataType<std::set<E, Rest...>>)
struct MarshalingPolicy<std::set<E, Rest...>> : detail::ElementRefusals<E> {
    using Type = SetPolicy;
};

template <class E, class... Rest>
struct MarshalingPolicy<std::unordered_set<E, Rest...>> : detail::ElementRefusals<E> {
    using Type = SetPolicy;
};

} // namespace orbis::factory
