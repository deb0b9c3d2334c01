#include "orbis/factory/detail/objects/namedObjects.hpp"
#include "orbis/factory/detail/objects/sharedNamedObjects.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/base/errorIdentities.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/throwNullInput.hpp"
#include "orbis/factory/detail/bindings/bindings.hpp"
#include "orbis/factory/detail/objects/ObjectPointerMarshaler.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"

#include "basic/HostDependents.hpp"
#include "basic/NativeStorage.hpp"
#include "marshal/throwError.hpp"
#include "module/PublishedClasses.hpp"
#include "module/cppName.hpp"
#include "module/objectShares.hpp"
#include "module/publishedName.hpp"

#include "orbis/COSClass.hpp"

#include <stdexcept>
#include <string>
#include <utility>

namespace orbis::factory::detail {

namespace {

using basic::HostShares;
using basic::PartOf;

/// Looks in the other modules of the virtual machine.
[[gnu::noinline]] NamedClass const& publishedElsewhere(NamedClass const& named)
{
    NamedClass const* const found = PublishedClasses::ofCurrentHvm().findNamed(*named.type);
    if (!found)
        throw std::invalid_argument("the class " + cppName(*named.type) +
                                    " is not published: publish it, or load the module that does");
    return *found;
}

/// Returns the record of the module that publishes the class.
NamedClass const& published(NamedClass const& named)
{
    return publishedName(named) ? named : publishedElsewhere(named);
}

char const* mostDerivedName(NamedClass const& named, void const* object, void* bound)
{
    std::type_info const& type = named.dynamicType ? named.dynamicType(object) : *named.type;
    if (type == *named.type)
        return className(named);
    return PublishedClasses::ofCurrentHvm().mostDerived(bound, type, {className(named), named.type, named.isInstance});
}

/// Returns the host object that represents the object of this class at the address, or null. An object and its first
/// member have one address, which is bound as one of them only: the member is then found among the parts.
COSInterface* findHost(void const* bound, char const* className, COSInterface const* whole)
{
    COSInterface* const host = basic::BindingRegistry::find(bound);
    COSNameID const name(className);
    if (!host || host->getNativeObject(name))
        return host;
    auto const& dependents = basic::registry().dependents;
    return dependents ? dependents->shares.findPart(whole, name, bound) : nullptr;
}

COSInterfacePtr newHost(COSNameID const& className)
{
    COSClass* const cls = COSClass::getClass(className);
    if (!cls)
        throw Exception("The class \"" + std::string(static_cast<COSString>(className).c_str()) +
                        "\" is not published in this virtual machine.");
    COSInterfacePtr host = cls->newInstance();
    cls->initializeInstance(host);
    return host;
}

/// Creates the host object of `bound`. With a share it does not own the native object alone.
hvArray_tag* createHost(void* bound, char const* className, bool isNewObject, HostShares::Share const* share)
{
    COSNameID const name(className);
    COSInterfacePtr host = newHost(name);
    NewArray array(omCreateORBISScalar(host));
    if (share)
        objectShares().give(host, *share); // first: from now on nothing deletes the native object with it
    if (isNewObject) {
        bindConstructed(host, name, bound);
    } else {
        host->setNativeObject(name, bound);
        if (!basic::BindingRegistry::contains(bound))
            basic::registry().bind(bound, host, name);
    }
    return array.release();
}

COSInterfacePtr firstOf(hvArray_tag const* in)
{
    return in && in->get_number_of_elements() != 0 ? omGetArrayElement(in, 0) : COSInterfacePtr();
}

/// What native code wants of an object.
enum class Wanted { Share, Taken };

[[noreturn]] void refuse(NamedClass const& named, Wanted wanted, char const* reason)
{
    if (wanted == Wanted::Share)
        throwError(orbis_factory::orbis_factory::cannot_share(className(named), reason));
    throwError(orbis_factory::orbis_factory::cannot_take(className(named), reason));
}

/// Returns the share of the host object, after checking that it owns its native object, alone or with others, and that
/// the object can be destroyed as one of this class.
HostShares::Share const* requireOwner(NamedClass const& named, COSInterface const* host, Wanted wanted)
{
    auto const& dependents = basic::registry().dependents;
    HostShares::Share const* const share = dependents ? dependents->shares.find(host) : nullptr;
    bool const isShared = share && std::holds_alternative<std::shared_ptr<void>>(*share);
    if (!isShared && (share || !named.isOwnedByHost))
        refuse(named, wanted, "its host object does not own it");
    if (!isShared && named.isBase && !named.hasVirtualDestructor)
        refuse(named, wanted, "it may be of a subclass, and the class has no virtual destructor");
    return share;
}

} // namespace

char const* className(NamedClass const& given)
{
    return publishedName(published(given));
}

void* toBound(NamedClass const& given, void* object)
{
    NamedClass const* from = &published(given);
    while (object && from && from->toBase) {
        object = from->toBase(object);
        from = from->base;
    }
    return object;
}

void* fromBound(NamedClass const& given, void* bound)
{
    NamedClass const& named = published(given);
    if (!bound || !named.fromBase)
        return bound;
    void* const base = named.base ? fromBound(*named.base, bound) : bound;
    return base ? named.fromBase(base) : nullptr;
}

void* nativeOf(NamedClass const& given, hvArray_tag const* in)
{
    NamedClass const& named = published(given);
    return fromBound(named, nativeObject(in, className(named)));
}

void* nativeOf(NamedClass const& given, COSInterface const* object)
{
    NamedClass const& named = published(given);
    return fromBound(named, nativeObject(object, className(named)));
}

void* requireNativeOf(NamedClass const& named, hvArray_tag const* in)
{
    void* const object = nativeOf(named, in);
    if (!object)
        throwNullInput(in, className(named));
    return object;
}

void requireExactType(NamedClass const& named, void const* object)
{
    std::type_info const& type = named.dynamicType ? named.dynamicType(object) : *named.type;
    if (type != *named.type)
        throwError(
            orbis_factory::orbis_factory::cannot_copy(className(named), "it is of the derived class " + cppName(type)));
}

namespace {

/// In debug builds, throws for an object that nobody can delete.
void requireDeletable([[maybe_unused]] NamedClass const& named, [[maybe_unused]] void const* object)
{
#ifndef NDEBUG
    if (char const* const place = basic::NativeStorage().placeOf(object))
        throwError(orbis_factory::orbis_factory::cannot_own(className(named), "it lies " + std::string(place)));
#endif
}

/// For an object that the caller transfers: it is deleted when this throws, unless nobody can.
hvArray_tag* announceOwned(NamedClass const& named, void* object, COSInterface const* whole)
{
    if (whole)
        throwError(
            orbis_factory::orbis_factory::cannot_own(className(named), "it lies inside the object that gave it"));
    requireDeletable(named, object);
    std::unique_ptr<void, void (*)(void*)> transferred(object, named.destroy);
    void* const bound = toBound(named, object);
    char const* const name = mostDerivedName(named, object, bound);
    NewArray array;
    if (named.isOwnedByHost) {
        *array.place() = createHost(bound, name, true, nullptr);
    } else {
        // The class info leaves native objects alone, so a share destroys this one.
        std::shared_ptr<void> const owned(object, Destroyer());
        HostShares::Share const share = owned;
        *array.place() = createHost(bound, name, true, &share);
        destroyerOf(owned)->destroy = named.destroy;
    }
    static_cast<void>(transferred.release());
    return array.release();
}

} // namespace

hvArray_tag* announceNamed(NamedClass const& given, void const* object, ResultOwner owner, COSInterface* whole)
{
    NamedClass const& named = published(given);
    if (!object)
        return omCreateORBISMatrix(0, 0, COSNameID(className(named)));
    if (owner == ResultOwner::Host)
        return announceOwned(named, const_cast<void*>(object), whole);
    void* const bound = toBound(named, const_cast<void*>(object));
    if (COSInterface* const host = findHost(bound, className(named), whole))
        return omCreateORBISScalar(host);
    char const* const name = mostDerivedName(named, object, bound);
    if (owner == ResultOwner::Whole && whole) {
        HostShares::Share const part = PartOf{COSInterfacePtr(whole)};
        return createHost(bound, name, false, &part);
    }
    HostShares::Share const others;
    return createHost(bound, name, false, named.isOwnedByHost ? &others : nullptr);
}

hvArray_tag* announcePart(void* bound, std::type_info const& dynamicType, NativeClassRecord const& staticClass,
                          COSInterface* whole)
{
    if (COSInterface* const host = findHost(bound, staticClass.hostName, whole))
        return omCreateORBISScalar(host);
    bool const isExact = dynamicType == *staticClass.type;
    char const* const name =
        isExact ? staticClass.hostName : PublishedClasses::ofCurrentHvm().mostDerived(bound, dynamicType, staticClass);
    HostShares::Share part;
    if (whole)
        part = PartOf{COSInterfacePtr(whole)};
    return createHost(bound, name, false, &part);
}

hvArray_tag* announceShared(NamedClass const& given, void const* object, std::shared_ptr<void> share)
{
    NamedClass const& named = published(given);
    if (!object)
        return omCreateORBISMatrix(0, 0, COSNameID(className(named)));
    void* const bound = toBound(named, const_cast<void*>(object));
    HostShares::Share const held = std::move(share);
    if (COSInterface* const host = findHost(bound, className(named), nullptr)) {
        HostShares::Share const* const known = objectShares().find(host);
        if (known && !std::holds_alternative<std::shared_ptr<void>>(*known))
            objectShares().give(host, held); // was borrowed, or a part
        return omCreateORBISScalar(host);
    }
    return createHost(bound, mostDerivedName(named, object, bound), false, &held);
}

std::shared_ptr<void> shareNamed(NamedClass const& given, hvArray_tag const* in)
{
    NamedClass const& named = published(given);
    COSInterfacePtr const host = firstOf(in);
    void* const object = nativeOf(named, static_cast<COSInterface const*>(host));
    if (!object)
        return nullptr;
    if (HostShares::Share const* const share = requireOwner(named, host, Wanted::Share))
        return std::get<std::shared_ptr<void>>(*share);
    return shareOwned(named, host, object);
}

void requireOwned(NamedClass const& given, hvArray_tag const* in, bool alone)
{
    NamedClass const& named = published(given);
    COSInterfacePtr const host = firstOf(in);
    if (!host)
        return;
    requireNativeOf(named, in);
    HostShares::Share const* const share = requireOwner(named, host, alone ? Wanted::Taken : Wanted::Share);
    if (!share || !alone)
        return;
    Destroyer const* const destroyer = destroyerOf(std::get<std::shared_ptr<void>>(*share));
    refuse(named, Wanted::Taken, destroyer && !destroyer->kept.empty() ? "it keeps other objects" : "it is shared");
}

void* takeNamed(NamedClass const& given, hvArray_tag const* in)
{
    NamedClass const& named = published(given);
    COSInterfacePtr host = firstOf(in);
    void* const object = nativeOf(named, static_cast<COSInterface const*>(host));
    if (!object)
        return nullptr;
    requireOwned(named, in, true);
    host->setValid(false);
    return object;
}

} // namespace orbis::factory::detail
