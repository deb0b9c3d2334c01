#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/ownership/CopyableSupport.hpp"

#include <memory>
#include <type_traits>

namespace orbis::factory {

/// Class info of a value class: each host object owns a native object of type `T`. `U` is `T` itself.
template <class T, class U = T>
class NonHandleClassInfo : public OrbisFactoryClassInfo {
    static_assert(std::is_same_v<T, U>, "NonHandleClassInfo<T, U>: U is T itself.");
    static_assert(std::is_default_constructible_v<T>, "Host objects of a value class begin with a default-made native "
                                                      "object: give the class a public default constructor.");
    static_assert(!PublishedClass<T> || ValueClass<T>, "A class published with NonHandleClassInfo crosses as a value: "
                                                       "say `using Policy = ValuePolicy` in its HostClass.");

public:
    using OrbisFactoryClassInfo::OrbisFactoryClassInfo;

    /// Returns a new native object, which is in the unconstructed set until it receives its value.
    void* createInstanceData() override
    {
        auto created = std::make_unique<T>();
        CopyableSupport::addToUnconstructedSet(created.get());
        return created.release();
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
