#include "orbis/factory/basic/BindingRegistry.hpp"

#include "orbis/factory/CopyableSupport.hpp"
#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"
#include "orbis/factory/detail/hostShares.hpp"
#include "orbis/factory/errorIdentities.hpp"

#include "marshal/throwError.hpp"

#include "libhv/libhv.hpp"
#include "libkwfoundation_usm/Detail.hpp"
#include "orbis/COSClass.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/objectArrays.hpp"

#include <memory>

namespace orbis::factory::basic {

namespace {

using ArrayOwner = std::unique_ptr<hvArray, hvDestroy_deleter>;

COSClass& requireClass(COSNameID const& className)
{
    COSClass* const cls = COSClass::getClass(className);
    if (!cls)
        throwError(orbis_factory::orbis_factory::no_such_class(static_cast<COSString>(className).c_str()));
    return *cls;
}

COSInterfacePtr newInitializedInstance(COSClass& cls)
{
    COSInterfacePtr instance = cls.newInstance();
    cls.initializeInstance(instance);
    return instance;
}

// Inlined, as is `arrayOf`: returning a bound object is what results of calls do all the time.
[[gnu::always_inline]] inline RegistryEntry* entryOf(void const* object)
{
    FooRegistry const& table = HvmScoped<FooRegistry>::get();
    auto const found = table.find(object);
    return found == table.end() ? nullptr : found->second;
}

/// Erases the mapping of `object`; an empty pointer when it is no key. Makes no table: destructors must not need
/// memory.
std::unique_ptr<RegistryEntry> take(void const* object)
{
    FooRegistry* const table = HvmScoped<FooRegistry>::find();
    auto const mapping = table ? table->extract(object) : FooRegistry::node_type();
    return std::unique_ptr<RegistryEntry>(mapping ? mapping.mapped() : nullptr);
}

[[gnu::always_inline]] inline hvArray* arrayOf(COSInterface* host, COSNameID const& className)
{
    ArrayOwner array(omCreateORBISMatrix(1, 1, className));
    omSetArrayElement(array.get(), 0, COSInterfacePtr(host));
    return array.release();
}

/// Makes and binds a host object, unless `object` is null.
[[gnu::noinline]] hvArray* announceUnbound(void* object, COSNameID const& className)
{
    std::size_t const size = object ? 1 : 0;
    ArrayOwner array(omCreateORBISMatrix(size, size, className));
    if (object) {
        COSInterfacePtr instance = newInitializedInstance(requireClass(className));
        instance->setNativeObject(className, object);
        omSetArrayElement(array.get(), 0, instance);
        registry().bind(object, instance, className);
    }
    return array.release();
}

} // namespace

BindingRegistry& BindingRegistry::operator=(BindingRegistry const&) = default;

BindingRegistry& BindingRegistry::operator=(BindingRegistry&&) = default;

hvArray* BindingRegistry::announce(void* object, COSNameID const& className)
{
    RegistryEntry const* const bound = entryOf(object);
    return bound ? arrayOf(bound->host, className) : announceUnbound(object, className);
}

hvArray* BindingRegistry::announce(void* object, COSNameID const& className, bool& created)
{
    RegistryEntry const* const bound = entryOf(object);
    hvArray* const array = bound ? arrayOf(bound->host, className) : announceUnbound(object, className);
    created = object && !bound;
    return array;
}

hvArray* BindingRegistry::announce(void const* object, COSNameID const& className)
{
    return announce(const_cast<void*>(object), className);
}

hvArray* BindingRegistry::announce(void const* object, COSNameID const& className, bool& created)
{
    return announce(const_cast<void*>(object), className, created);
}

COSInterfacePtr BindingRegistry::announceInternal(void* object, COSNameID const& className, bool& created)
{
    ArrayOwner const array(announce(object, className, created));
    return object ? omGetArrayElement(array.get(), 0) : COSInterfacePtr();
}

void BindingRegistry::announceForConstructor(void* const object, COSNameID const& className, hvArray* constructed,
                                             bool store)
{
    CopyableSupport::removeFromUnconstructedSet(object); // before anything can fail
    COSInterfacePtr instance = cosiGetArrayElement(constructed, 0);
    instance->setNativeObject(className, object);
    if (object && store)
        registry().bind(object, instance, className);
}

hvArray* BindingRegistry::announceWithoutStoring(void* source, COSNameID const& className,
                                                 void (*copy)(void* destination, void* source))
{
    COSClass& cls = requireClass(className);
    ArrayOwner result(omCreateORBISMatrix(1, 1, className));
    COSInterfacePtr instance = newInitializedInstance(cls);
    void* const destination = instance->getNativeObject(className);
    copy(destination, source);
    CopyableSupport::removeFromUnconstructedSet(destination);
    omSetArrayElement(result.get(), 0, instance);
    return result.release();
}

bool BindingRegistry::contains(void const* const object)
{
    return registry().count(object) != 0;
}

COSInterface* BindingRegistry::find(void const* const object)
{
    RegistryEntry const* const bound = entryOf(object);
    return bound ? bound->host : nullptr;
}

void BindingRegistry::hijack(void const* const oldObject, void* newObject, COSInterface* host,
                             COSNameID const& className)
{
    // A binding of the old address to another host object is left in place on purpose.
    bool const movesBinding = oldObject != newObject && find(oldObject) == host;
    host->setNativeObject(className, newObject);
    registry().bind(newObject, host, className);
    if (!movesBinding)
        return;
    take(oldObject);
    if (find(newObject) != host) // which was bound already: no binding is left
        registry().handles.giveBack(host);
}

bool BindingRegistry::release(void const* const object)
{
    return remove(object);
}

bool BindingRegistry::remove(void const* const object)
{
    COSInterface* const host = find(object);
    if (!host)
        return false;
    if (auto const& history = registry().history) // while nothing is done: it may be out of memory
        history->unbound.emplace(host, object);
    take(object);
    registry().handles.giveBack(host);
    return true;
}

bool BindingRegistry::retract(void const* const object)
{
    if (!foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive())
        return false;
    std::unique_ptr<RegistryEntry> const entry = take(object);
    if (!entry)
        return false;
    if (!entry->retracted) {
        entry->retracted = true;
        COSInterfacePtr host = entry->host;
        host->setValid(false);
        detail::dropShare(host); // it ends without another word to its class info
        registry().handles.giveBack(host);
    }
    return true;
}

} // namespace orbis::factory::basic
