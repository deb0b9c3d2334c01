#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/objects/EnumerationMarshaler.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/objectArrays.hpp"

#include <vector>

namespace orbis::factory {

/// `std::vector` of enumerators, whichever side implements their class. Passed to the host as a row of their objects.
/// From the host it takes all elements of an array of any size, in column order.
class EnumClassArrayPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<EnumClassArrayPolicy> : public detail::DataTypeName<Marshaler<EnumClassArrayPolicy>> {
    template <class Vector>
    using Enumeration = detail::EnumerationOf<typename Vector::value_type>;

public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <class Vector>
    static void toHost(Vector const& values, hvArray** out)
    {
        EnumerationRecord const& record = Enumeration<Vector>::record();
        COSNameID const className = getScalarClassID(dataTypeName<Vector>());
        detail::NewArray row(omCreateORBISMatrix(1, values.size(), className));
        for (std::size_t i = 0; i < values.size(); ++i)
            omSetArrayElement(row.get(), i,
                              detail::enumeratorObject(record, className, static_cast<std::int64_t>(values[i])));
        *out = row.release();
    }

    template <class Vector>
    static Vector fromHost(hvArray_tag const* in)
    {
        std::size_t const count = in ? in->get_number_of_elements() : 0;
        EnumerationRecord const& record = Enumeration<Vector>::record();
        Vector values;
        values.reserve(count);
        for (std::size_t i = 0; i < count; ++i)
            values.push_back(
                static_cast<typename Vector::value_type>(detail::enumeratorValue(record, omGetArrayElement(in, i))));
        return values;
    }

    template <class Vector>
    static char const* dataTypeText()
    {
        return Enumeration<Vector>::vectorText();
    }

private:
    /// Returns the data type name of one element: `arrayType` without its last seven characters if it contains "
    /// vector", else unchanged.
    static COSNameID getScalarClassID(COSNameID const& arrayType);
};

template <PublishedEnumeration E>
struct MarshalingPolicy<std::vector<E>> {
    using Type = EnumClassArrayPolicy;
};

} // namespace orbis::factory
