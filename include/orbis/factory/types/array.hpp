#pragma once

#include "orbis/factory/types/pair.hpp"

#include "host_extensions/numericClasses.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace orbis::factory {

/// `std::array` of numbers or `bool`: a row of as many, taken from an array of any shape. Of other types, a list like a
/// tuple.
class NumericArrayPolicy {};

template <>
class Marshaler<NumericArrayPolicy> : public detail::DataTypeName<Marshaler<NumericArrayPolicy>> {
public:
    template <class Array>
    static void toHost(Array const& values, hvArray** out)
    {
        *out = detail::createRow(std::span<typename Array::value_type const>(values));
    }

    template <class Array>
    static Array fromHost(hvArray_tag const* in)
    {
        auto const elements = detail::elementsOf<typename Array::value_type>(in);
        constexpr std::size_t count = std::tuple_size_v<Array>;
        if (elements.size() != count)
            detail::throwNotConvertible("needs " + std::to_string(count) + " numbers, not " +
                                        std::to_string(elements.size()));
        Array values;
        std::copy(elements.begin(), elements.end(), values.begin());
        return values;
    }

    template <class Array>
    static char const* dataTypeText()
    {
        return host_extensions::numericClassOf<typename Array::value_type>.vectorType;
    }
};

template <COSScalar T, std::size_t N>
struct MarshalingPolicy<std::array<T, N>> {
    using Type = NumericArrayPolicy;
    static constexpr bool namesInput = true;
};

template <class T, std::size_t N>
struct MarshalingPolicy<std::array<T, N>> : detail::ElementRefusals<T> {
    using Type = TuplePolicy;
};

} // namespace orbis::factory
