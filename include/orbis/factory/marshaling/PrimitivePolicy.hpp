#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"

#include "host_extensions/numericClasses.hpp"
#include "orbis/COSNameID.hpp"
#include "orbis/COSValue.hpp"

namespace orbis::factory {

/// `bool`, `float`, `double` and integers: stored in the value slot itself. The host converts them.
class PrimitivePolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<PrimitivePolicy> : public detail::DataTypeName<Marshaler<PrimitivePolicy>> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <COSScalar T>
    static void toHost(T value, COSValue* out)
    {
        *out = COSValue(value);
    }

    template <COSScalar T>
    static T fromHost(COSValue const& in)
    {
        return in.scalar<T>();
    }

    template <COSScalar T>
    static constexpr char const* dataTypeText()
    {
        return host_extensions::numericClassOf<T>.scalarType;
    }
};

} // namespace orbis::factory
