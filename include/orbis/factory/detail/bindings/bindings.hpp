#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/COSNameID.hpp"

/// What constructors and class infos do with bindings.
namespace orbis::factory::detail {

/// Records `object`, which is not null and has just been constructed, behind `host`, which the caller holds, and binds
/// it. Another host object that is bound to the address becomes invalid.
ORBIS_FACTORY_API void bindConstructed(COSInterface* host, COSNameID const& className, void* object);

/// Forgets the binding of `object` to `host` (null for any host object) for a class info whose host object ends: gives
/// `object` when there was one, else null. An address that was released and has been bound to another host object since
/// is that one's.
ORBIS_FACTORY_API void* forgetBinding(COSInterface const* host, void* object);

/// Deletes a native object, the result of a call, that could not be bound, where the class info of `className` would
/// delete it with its host object. Null and what is bound are left alone.
ORBIS_FACTORY_API void discardUnbound(void* object, char const* className) noexcept;

/// Releases the binding of `object` (null allowed) where nothing but elements of `row` holds its host object: it was
/// bound to become the result of a call that fails, and stays whose it was.
ORBIS_FACTORY_API void releaseResult(void const* object, hvArray_tag const* row) noexcept;

} // namespace orbis::factory::detail
