#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/COSNameID.hpp"

/// Binding operations of generated constructors and class infos.
namespace orbis::factory::detail {

/// Records `object`, not null and just constructed, in `host`, which the caller holds, and binds it. Another host
/// object that is bound to the address becomes invalid.
ORBIS_FACTORY_API void bindConstructed(COSInterface* host, COSNameID const& className, void* object);

/// For class infos, when their host object is destroyed: removes the binding of `object` to `host` (null: to any host
/// object). Returns `object` if there was one, else null. Thus an address that was released and since bound to another
/// host object stays bound to that.
ORBIS_FACTORY_API void* forgetBinding(COSInterface const* host, void* object);

struct ForgottenBinding {
    void* owned; ///< the native object if it belonged to the host object alone, else null
    bool wasBound;
};

/// The same, and drops the share that `host` holds in an object that it does not own alone.
ORBIS_FACTORY_API ForgottenBinding forgetBindingAndShare(COSInterface const* host, void* object);

/// Deletes a native object, the result of a call, that could not be bound, if the class info of `className` would
/// delete it with its host object. Does nothing for null and for bound objects.
ORBIS_FACTORY_API void discardUnbound(void* object, char const* className) noexcept;

/// Rolls back a binding that was created for the result of a failed call: removes the binding of `object` (null
/// allowed) if only elements of `row` hold its host object. The native object keeps its owner.
ORBIS_FACTORY_API void releaseResult(void const* object, hvArray_tag const* row) noexcept;

} // namespace orbis::factory::detail
