#pragma once

#include "orbis/COSNameID.hpp"

namespace orbis::factory::detail {

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
