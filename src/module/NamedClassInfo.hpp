#pragma once

#include "orbis/factory/ClassDescription.hpp"
#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/detail/objects/NamedClass.hpp"

#include "basic/NativeStorage.hpp"

#include "host_extensions/NativeEquality.hpp"

#include <memory>

namespace orbis::factory {

/// Class info of the classes that a `Module` publishes: host objects represent native objects, bound by their address.
class NamedClassInfo final : public OrbisFactoryClassInfo,
                             public host_extensions::NativeEquality,
                             public basic::NativeExtents {
public:
    NamedClassInfo(detail::NamedClass const& named, std::unique_ptr<ClassDescription> description, char const* text);

    void initializeClass(COSClass* cls) override;

    /// Returns null: the native object is bound later.
    void* createInstanceData() override;

    /// Removes the binding, and deletes the native object if the host object owned it alone.
    bool destroyInstanceData(COSInterface* object, void* data) override;

    bool isHandle() const override;

    /// Private without a constructor: then host objects are created for native ones only.
    ClassAccess getAccess() const override;
    char const* nativeOwner() const override;
    void discardNative(void* native) noexcept override;
    bool ownsAlone(COSInterface const* host) const override;
    bool comparesNatives() const override;
    bool areEqual(void* a, void* b) const override;
    Extent extentOf(void* bound) const override;

    detail::NamedClass const& named() const { return named_; }

private:
    detail::NamedClass const& named_;
    std::unique_ptr<ClassDescription> description_;
};

} // namespace orbis::factory
