#include "module/NamedClassInfo.hpp"

#include "orbis/factory/detail/bindings/bindings.hpp"

#include "module/objectShares.hpp"

#include <algorithm>
#include <utility>

namespace orbis::factory {

NamedClassInfo::NamedClassInfo(detail::NamedClass const& named, std::unique_ptr<ClassDescription> description,
                               char const* text)
    : OrbisFactoryClassInfo(detail::className(named), text),
      named_(named),
      description_(std::move(description))
{
}

void NamedClassInfo::initializeClass(COSClass* cls)
{
    factory::publish(cls, *description_);
}

void* NamedClassInfo::createInstanceData()
{
    return nullptr;
}

bool NamedClassInfo::destroyInstanceData(COSInterface* object, void* data)
{
    detail::ForgottenBinding const forgotten = detail::forgetBindingAndShare(object, data);
    discardNative(forgotten.owned);
    return forgotten.wasBound;
}

bool NamedClassInfo::isHandle() const
{
    return true;
}

ClassAccess NamedClassInfo::getAccess() const
{
    bool const isConstructible = std::ranges::any_of(description_->members(), [](MemberRecord const& member) {
        return member.kind == MemberRecord::Kind::Constructor;
    });
    return isConstructible ? ClassAccess::Public : ClassAccess::Private;
}

char const* NamedClassInfo::nativeOwner() const
{
    return named_.isOwnedByHost ? "host" : "native";
}

void NamedClassInfo::discardNative(void* native) noexcept
{
    void* const object = named_.isOwnedByHost && named_.destroy ? detail::fromBound(named_, native) : nullptr;
    if (object)
        named_.destroy(object);
}

bool NamedClassInfo::ownsAlone(COSInterface const* host) const
{
    basic::HostShares::Share const* const share = objectShares().find(host);
    if (!share)
        return named_.isOwnedByHost;
    auto const* const shared = std::get_if<std::shared_ptr<void>>(share);
    return shared && shared->use_count() == 1;
}

bool NamedClassInfo::comparesNatives() const
{
    return named_.areEqual != nullptr;
}

bool NamedClassInfo::areEqual(void* a, void* b) const
{
    void const* const first = detail::fromBound(named_, a);
    void const* const second = detail::fromBound(named_, b);
    return first && second && named_.areEqual(first, second);
}

basic::NativeExtents::Extent NamedClassInfo::extentOf(void* bound) const
{
    return {static_cast<char const*>(detail::fromBound(named_, bound)), named_.size};
}

} // namespace orbis::factory
