#pragma once

#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/classes/describeEnumeration.hpp"

namespace orbis::factory {

/// Publishes a native enumeration, ready to be added to a package:
///
///     package->addClass(new EnumerationClassInfo<Color>("What a lamp can shine in"));
///
/// Scripts get the enumerators as objects, one for each; they make and delete none.
template <PublishedEnumeration E>
class EnumerationClassInfo : public OrbisFactoryClassInfo {
    static_assert(!detail::isVelmaraImplemented<E>, "The class of this enumeration is written in the host language "
                                                    "(HostEnumeration<E>::isVelmaraImplemented): publish none.");

public:
    explicit EnumerationClassInfo(std::string const& description)
        : OrbisFactoryClassInfo(HostEnumeration<E>::name, description)
    {
    }

    /// Describes the enumerators. A derived class info may add members.
    void initializeClass(COSClass* cls) override { publish(cls, detail::enumerationRecord<E>); }
    void* createInstanceData() override { return nullptr; }
    bool destroyInstanceData(COSInterface*, void*) override { return false; }
    bool isHandle() const override { return true; }
    bool isEnumeration() const override { return true; }
};

} // namespace orbis::factory
