#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSNameID.hpp"

#include <string>

namespace orbis::factory::detail {

/// Returns the name of a data type that is made from another.
ORBIS_FACTORY_API std::string dataTypeTextWith(char const* dataType, char const* suffix);

/// Base of marshalers: adds `dataTypeName` to their `dataTypeText`.
template <class Marshaler>
struct DataTypeName {
    template <class T>
    static COSNameID dataTypeName()
    {
        return COSNameID(Marshaler::template dataTypeText<T>());
    }
};

} // namespace orbis::factory::detail
