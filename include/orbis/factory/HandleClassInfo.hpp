#pragma once

#include "orbis/factory/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/basic/BindingRegistry.hpp"

#include <type_traits>

namespace orbis::factory {

/// Publishes a class whose host objects stand for native objects of type `T`, bound by their address. With `N` 1
/// the end of the host object deletes the native one; with 0 it lives on, and belongs to whoever made it.
template <class T, int N>
class HandleClassInfo : public OrbisFactoryClassInfo {
    static_assert(N == 0 || N == 1, "HandleClassInfo<T, N>: N is 1 to delete native objects with their host objects, "
                                    "or 0 to leave them alone.");
    static_assert(N == 0 || std::has_virtual_destructor_v<T>,
                  "HandleClassInfo<T, 1> deletes native objects through T: give T a virtual destructor, or use "
                  "HandleClassInfo<T, 0> and delete them yourself.");

public:
    using OrbisFactoryClassInfo::OrbisFactoryClassInfo;

    /// Null: the native object is bound later.
    void* createInstanceData() override { return nullptr; }

    /// Forgets the binding of `data`, a native address, to `object` (null for any object); true when there was one.
    /// Only then the native object is deleted, if it is this class info's to delete. An address that was released and
    /// has been bound to another host object since is that one's affair.
    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        bool const isOurs = !object || basic::BindingRegistry::find(data) == object;
        bool const wasBound = isOurs && basic::BindingRegistry::release(data);
        if constexpr (N == 1) {
            if (wasBound && data)
                delete static_cast<T*>(data);
        }
        return wasBound;
    }

    bool isHandle() const override { return true; }
};

} // namespace orbis::factory
