#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/classes/describeEnumeration.hpp"

namespace orbis::factory {

/// Class info of a native enumeration, ready to be added to a package:
///
///     package->addClass(new EnumerationClassInfo<Color>("What a lamp can shine in"));
///
/// Scripts get one object for each enumerator, and can neither create nor delete any.
template <PublishedEnumeration E>
class EnumerationClassInfo : public OrbisFactoryClassInfo {
    static_assert(!detail::isVelmaraImplemented<E>, "The class of this enumeration is written in the host language "
                                                    "(HostEnumeration<E>::isVelmaraImplemented): publish none.");

public:
    /// `description` is a text for users.
    explicit EnumerationClassInfo(std::string const& description)
        : OrbisFactoryClassInfo(HostEnumeration<E>::name, description)
    {
        constexpr detail::Refusal refusal = detail::enumerationRefusal<E>();
        if constexpr (refusal != detail::Refusal::None)
            detail::refuse<refusal, E>();
    }

    /// Adds the enumerators. A derived class info may add members.
    void initializeClass(COSClass* cls) override { publish(cls, detail::enumerationRecord<E>); }
    void* createInstanceData() override { return nullptr; }
    bool destroyInstanceData(COSInterface*, void*) override { return false; }
    bool isHandle() const override { return true; }
    bool isEnumeration() const override { return true; }
};

} // namespace orbis::factory
