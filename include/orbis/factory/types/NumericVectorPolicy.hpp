#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/numericArrays.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "host_extensions/numericClasses.hpp"

#include "orbis/COSNameID.hpp"

#include <span>
#include <type_traits>
#include <vector>

namespace orbis::factory {

/// `std::vector` of numbers or `bool`, copied once in each direction. Passed to the host as one row. From the host it
/// takes all elements of an array of any size, in column order. The host first converts arrays of other numeric classes
/// element by element, and rejects an array with an element that the class cannot represent.
class NumericVectorPolicy {};

template <>
class Marshaler<NumericVectorPolicy> : public detail::DataTypeName<Marshaler<NumericVectorPolicy>> {
public:
    template <class Vector>
    static void toHost(Vector const& values, hvArray** out)
    {
        if constexpr (std::is_same_v<Vector, std::vector<bool>>)
            *out = detail::createRow(values);
        else
            *out = detail::createRow(std::span(values));
    }

    template <class Vector>
    static Vector fromHost(hvArray_tag const* in)
    {
        auto const elements = detail::elementsOf<typename Vector::value_type>(in);
        return Vector(elements.begin(), elements.end());
    }

    template <class Vector>
    static char const* dataTypeText()
    {
        return host_extensions::numericClassOf<typename Vector::value_type>.vectorType;
    }
};

template <COSScalar T>
struct MarshalingPolicy<std::vector<T>> {
    using Type = NumericVectorPolicy;
};

} // namespace orbis::factory
