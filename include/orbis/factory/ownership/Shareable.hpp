#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/bindings/SharedOwnership.hpp"
#include "orbis/factory/ownership/SharingType.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include <boost/smart_ptr/enable_shared_from_this.hpp>
#include <boost/smart_ptr/make_shared.hpp>
#include <boost/smart_ptr/shared_ptr.hpp>

#include <concepts>
#include <utility>

namespace orbis::factory::full {

/// Base of native classes whose objects `boost::shared_ptr` owns. The host object that represents one holds a share, so
/// either side may release the object first.
class ORBIS_FACTORY_API Shareable : public Wrappable, public boost::enable_shared_from_this<Shareable> {
public:
    Shareable();
    Shareable(Shareable const&);
    Shareable& operator=(Shareable const&);
    ~Shareable() override;

    /// Who owns the reference that keeps the object alive for the host.
    virtual SharingType getSharingType() const;
};

/// Keeps the object alive until the first `releaseReference` or the end of the current virtual machine; repeated calls
/// have no further effect. Null is allowed. Given a raw pointer, throws the shared pointer's `bad_weak_ptr` when none
/// owns the object.
ORBIS_FACTORY_API void acquireReference(boost::shared_ptr<Shareable> const& object);
ORBIS_FACTORY_API void acquireReference(Shareable* object); ///< likewise

/// Releases the reference that `acquireReference` keeps, which may destroy the object; does nothing if there is none.
/// Null and errors as there.
ORBIS_FACTORY_API void releaseReference(boost::shared_ptr<Shareable> const& object);
ORBIS_FACTORY_API void releaseReference(Shareable* object); ///< likewise

/// Returns true.
ORBIS_FACTORY_API bool canAcquireReference(Shareable* object);

} // namespace orbis::factory::full

namespace orbis::factory::detail {

template <std::derived_from<full::Shareable> T>
struct NativeOwnership<T> : SharedOwnership<T, full::Shareable> {
    template <class... A>
    static boost::shared_ptr<T> make(A&&... arguments)
    {
        return boost::make_shared<T>(std::forward<A>(arguments)...);
    }
};

} // namespace orbis::factory::detail
