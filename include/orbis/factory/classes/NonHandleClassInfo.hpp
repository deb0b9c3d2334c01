#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/ownership/CopyableSupport.hpp"

#include <memory>
#include <string>
#include <type_traits>

namespace orbis::factory {

/// Class info of a value class: each host object owns a native object of type `T`. `U` is `T` itself.
template <class T, class U = T>
class NonHandleClassInfo : public OrbisFactoryClassInfo {
    static consteval detail::Refusal refusal()
    {
        if (!std::is_same_v<T, U>)
            return detail::Refusal::OtherValue;
        if (!std::is_default_constructible_v<T>)
            return detail::Refusal::NotDefaultConstructible;
        return !PublishedClass<T> || ValueClass<T> ? detail::Refusal::None : detail::Refusal::HandleAsValue;
    }

public:
    /// `name` is the full dotted one, `description` a text for users.
    NonHandleClassInfo(std::string const& name, std::string const& description)
        : OrbisFactoryClassInfo(name, description)
    {
        if constexpr (refusal() != detail::Refusal::None)
            detail::refuse<refusal(), T>();
    }

    /// Returns a new native object, which is in the unconstructed set until it receives its value.
    void* createInstanceData() override
    {
        if constexpr (std::is_default_constructible_v<T>) {
            auto created = std::make_unique<T>();
            CopyableSupport::addToUnconstructedSet(created.get());
            return created.release();
        } else {
            return nullptr; // refused
        }
    }

    /// Deletes the native object. Returns whether there was one.
    bool destroyInstanceData(COSInterface*, void* data) override
    {
        std::unique_ptr<T> const owner(static_cast<T*>(data));
        CopyableSupport::removeFromUnconstructedSet(data);
        return owner != nullptr;
    }

    bool isHandle() const override { return false; }
};

} // namespace orbis::factory
