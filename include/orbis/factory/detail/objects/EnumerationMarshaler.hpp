#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/classes/describeEnumeration.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"

namespace orbis::factory::detail {

/// Returns the host's object for a native value. Throws "orbis_factory:orbis_factory:no_such_enumerator" for a value
/// without a name or with a name that the host does not know, and "...:no_such_class" when the class is not published.
ORBIS_FACTORY_API COSInterfacePtr enumeratorObject(EnumerationRecord const& enumeration, COSNameID const& className,
                                                   std::int64_t value);

/// Returns the native value of a host object, looked up by any of its names. Throws
/// "orbis_factory:orbis_factory:no_such_enumerator" for null, and for an enumerator that the native side does not have.
ORBIS_FACTORY_API std::int64_t enumeratorValue(EnumerationRecord const& enumeration, COSInterface const* object);

/// The same for 1-by-1 arrays of objects.
ORBIS_FACTORY_API hvArray* enumeratorToHost(EnumerationRecord const& enumeration, std::int64_t value);
ORBIS_FACTORY_API std::int64_t enumeratorFromHost(EnumerationRecord const& enumeration, hvArray_tag const* in);

/// Common marshaler of the policies for single enumerators, which are matched by name. The host has already converted
/// names and numbers to the enumerator's object.
class EnumerationMarshaler : public DataTypeName<EnumerationMarshaler> {
public:
    template <class E>
    static void toHost(E const& value, hvArray** out)
    {
        *out = enumeratorToHost(EnumerationOf<E>::record(), static_cast<std::int64_t>(value));
    }

    template <class E>
    static E fromHost(hvArray_tag const* in)
    {
        return static_cast<E>(enumeratorFromHost(EnumerationOf<E>::record(), in));
    }

    template <class E>
    static constexpr char const* dataTypeText()
    {
        return EnumerationOf<E>::name();
    }
};

} // namespace orbis::factory::detail
