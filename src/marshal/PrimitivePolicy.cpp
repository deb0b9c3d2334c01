#include "orbis/factory/marshaling/PrimitivePolicy.hpp"

namespace orbis::factory {

Marshaler<PrimitivePolicy>& Marshaler<PrimitivePolicy>::operator=(Marshaler const&) = default;

Marshaler<PrimitivePolicy>& Marshaler<PrimitivePolicy>::operator=(Marshaler&&) = default;

char const* Marshaler<PrimitivePolicy>::scalarTypeText(hvClassID classID)
{
    switch (classID) {
    case hvLOGICAL_CLASS:
        return "logical scalar";
    case hvSINGLE_CLASS:
        return "single scalar";
    case hvINT8_CLASS:
        return "int8 scalar";
    case hvUINT8_CLASS:
        return "uint8 scalar";
    case hvINT16_CLASS:
        return "int16 scalar";
    case hvUINT16_CLASS:
        return "uint16 scalar";
    case hvINT32_CLASS:
        return "int32 scalar";
    case hvUINT32_CLASS:
        return "uint32 scalar";
    case hvINT64_CLASS:
        return "int64 scalar";
    case hvUINT64_CLASS:
        return "uint64 scalar";
    default:
        return "double scalar";
    }
}

} // namespace orbis::factory
