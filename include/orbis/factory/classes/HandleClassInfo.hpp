#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/detail/bindings/bindings.hpp"

#include <string>
#include <type_traits>

namespace orbis::factory {

/// Class info of a handle class: host objects represent native objects of type `T`, bound by their address. With `N` 1,
/// destroying the host object deletes the native one; with 0, whoever created the native object owns it.
template <class T, int N>
class HandleClassInfo : public OrbisFactoryClassInfo {
    static consteval detail::Refusal refusal()
    {
        if (N != 0 && N != 1)
            return detail::Refusal::HandleOrNot;
        if (N == 1 && !std::has_virtual_destructor_v<RootClass<T>>)
            return detail::Refusal::NotVirtuallyDestructible;
        return ValueClass<T> ? detail::Refusal::ValueAsHandle : detail::Refusal::None;
    }

public:
    /// `name` is the full dotted one, `description` a text for users.
    HandleClassInfo(std::string const& name, std::string const& description) : OrbisFactoryClassInfo(name, description)
    {
        if constexpr (refusal() != detail::Refusal::None)
            detail::refuse<refusal(), T>();
    }

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

    /// Returns true.
    bool isHandle() const override { return true; }

    /// Returns "host" where the native object is deleted with its host object, else "native".
    char const* nativeOwner() const override { return N == 1 ? "host" : "native"; }

    /// Deletes a native object that was not bound, where host objects own theirs.
    void discardNative(void* native) noexcept override
    {
        if constexpr (N == 1)
            delete static_cast<RootClass<T>*>(native);
    }
};

} // namespace orbis::factory
