#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/bindings/SharedOwnership.hpp"
#include "orbis/factory/ownership/SharingType.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include <concepts>
#include <memory>
#include <utility>

namespace orbis::factory::full {

/// Base of native classes whose objects `std::shared_ptr` owns. The host object that represents one holds a share, so
/// either side may release the object first.
class ORBIS_FACTORY_API StdShareable : public Wrappable, public std::enable_shared_from_this<StdShareable> {
public:
    StdShareable();
    StdShareable(StdShareable const&);
    StdShareable& operator=(StdShareable const&);
    ~StdShareable() override;

    /// Who owns the reference that keeps the object alive for the host.
    virtual SharingType getSharingType() const;
};

/// Keeps the object alive until the first `releaseReference` or the end of the current virtual machine; repeated calls
/// have no further effect. Null is allowed. Given a raw pointer, throws the shared pointer's `bad_weak_ptr` when none
/// owns the object.
ORBIS_FACTORY_API void acquireReference(std::shared_ptr<StdShareable> const& object);
ORBIS_FACTORY_API void acquireReference(StdShareable* object); ///< likewise

/// Releases the reference that `acquireReference` keeps, which may destroy the object; does nothing if there is none.
/// Null and errors as there.
ORBIS_FACTORY_API void releaseReference(std::shared_ptr<StdShareable> const& object);
ORBIS_FACTORY_API void releaseReference(StdShareable* object); ///< likewise

/// Returns true.
ORBIS_FACTORY_API bool canAcquireReference(StdShareable* object);

} // namespace orbis::factory::full

namespace orbis::factory::detail {

template <std::derived_from<full::StdShareable> T>
struct NativeOwnership<T> : SharedOwnership<T, full::StdShareable> {
    template <class... A>
    static std::shared_ptr<T> make(A&&... arguments)
    {
        return std::make_shared<T>(std::forward<A>(arguments)...);
    }
};

} // namespace orbis::factory::detail
