#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/Enumeration.hpp"

namespace orbis::factory {

/// Converts raw native pointers to the host objects that represent them.
class ORBIS_FACTORY_API RawClassPointerMarshaler {
public:
    RawClassPointerMarshaler& operator=(RawClassPointerMarshaler const&);
    RawClassPointerMarshaler& operator=(RawClassPointerMarshaler&&);

    /// Returns the host object bound to `object`, or an empty enumeration; creates no host object. Throws the host's
    /// `bad_alloc`.
    static Enumeration<COSInterface*> toCosi(void const* const object);
};

} // namespace orbis::factory
