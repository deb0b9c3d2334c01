#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/detail/bindings/bindings.hpp"

#include <type_traits>

namespace orbis::factory {

/// Class info of a handle class: host objects represent native objects of type `T`, bound by their address. With `N` 1,
/// destroying the host object deletes the native one; with 0, whoever created the native object owns it.
template <class T, int N>
class HandleClassInfo : public OrbisFactoryClassInfo {
    static_assert(N == 0 || N == 1, "HandleClassInfo<T, N>: N is 1 to delete native objects with their host objects, "
                                    "or 0 to leave them alone.");
    static_assert(N == 0 || std::has_virtual_destructor_v<RootClass<T>>,
                  "HandleClassInfo<T, 1> deletes native objects through T: give T a virtual destructor, or use "
                  "HandleClassInfo<T, 0> and delete them yourself.");
    static_assert(!ValueClass<T>, "Objects of a value class live inside their host objects: publish it with "
                                  "NonHandleClassInfo, or leave ValuePolicy out of its HostClass.");

public:
    using OrbisFactoryClassInfo::OrbisFactoryClassInfo;

    /// Returns null: the native object is bound later.
    void* createInstanceData() override { return nullptr; }

    /// Removes the binding of `data`, a native address, to `object` (null: to any host object). Returns whether there
    /// was one; only then, and only with `N` 1, is the native object deleted. One in which `object` holds a share, and
    /// a part of another object, are not.
    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        detail::ForgottenBinding const forgotten = detail::forgetBindingAndShare(object, data);
        if constexpr (N == 1)
            delete static_cast<RootClass<T>*>(forgotten.owned);
        return forgotten.wasBound;
    }

    bool isHandle() const override { return true; }
    char const* nativeOwner() const override { return N == 1 ? "host" : "native"; }

    void discardNative(void* native) noexcept override
    {
        if constexpr (N == 1)
            delete static_cast<RootClass<T>*>(native);
    }
};

} // namespace orbis::factory
