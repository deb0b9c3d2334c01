#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/numericArrays.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "host_extensions/numericClasses.hpp"

#include "orbis/COSNameID.hpp"

#include <span>

namespace orbis::factory {

/// `std::span<T const>` of numbers or `bool`. A parameter refers to the host's elements, in column order, during the
/// call; nothing is copied, except where the host converts (see `NumericVectorPolicy`). A result is copied to one row.
class NumericSpanPolicy {};

template <>
class Marshaler<NumericSpanPolicy> : public detail::DataTypeName<Marshaler<NumericSpanPolicy>> {
public:
    template <class Span>
    static void toHost(Span values, hvArray** out)
    {
        *out = detail::createRow(values);
    }

    template <class Span>
    static Span fromHost(hvArray_tag const* in)
    {
        return detail::elementsOf<typename Span::value_type>(in);
    }

    template <class Span>
    static char const* dataTypeText()
    {
        return host_extensions::numericClassOf<typename Span::value_type>.vectorType;
    }

    /// Does not own the elements.
    template <class Span>
    static consteval bool isView()
    {
        return true;
    }
};

template <COSScalar T>
struct MarshalingPolicy<std::span<T const>> {
    using Type = NumericSpanPolicy;
};

} // namespace orbis::factory
