#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/Enumeration.hpp"

namespace orbis::factory {

/// From raw native pointers to the host objects that stand for them.
class ORBIS_FACTORY_API RawClassPointerMarshaler {
public:
    RawClassPointerMarshaler& operator=(RawClassPointerMarshaler const&);
    RawClassPointerMarshaler& operator=(RawClassPointerMarshaler&&);

    /// The host object bound to `object`, or no element when there is none. Makes no host object. Throws the
    /// host's `bad_alloc`.
    static Enumeration<COSInterface*> toCosi(void const* const object);
};

} // namespace orbis::factory
