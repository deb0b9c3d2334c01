#include "orbis/factory/basic/BindingRegistry.hpp"

#include "orbis/factory/CopyableSupport.hpp"
#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"
#include "orbis/factory/errorIdentities.hpp"

#include "basic/HostDependents.hpp"
#include "marshal/throwError.hpp"

#include "libhv/libhv.hpp"
#include "libkwfoundation_usm/Detail.hpp"
#include "orbis/COSClass.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/objectArrays.hpp"

#include <memory>
#include <utility>

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
    void const* const previous = instance->getNativeObject(className);
    FooRegistry& table = registry();
    table.bindInPlaceOf(previous, store ? object : nullptr, instance, className);
    table.record(instance, className, object);
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
    FooRegistry& table = registry();
    COSInterfacePtr const held = host; // maybe only by what is released below
    // A binding of the old address to another host object is left in place on purpose.
    bool const movesBinding = oldObject != newObject && table.isBoundTo(oldObject, host);
    void const* const previous = host->getNativeObject(className);
    table.bindInPlaceOf(movesBinding && previous == oldObject ? nullptr : previous, newObject, host, className);
    table.record(host, className, newObject);
    if (movesBinding)
        table.unbind(oldObject, host);
    if (previous != newObject && table.dependents)
        table.dependents->shares.drop(host);
}

bool BindingRegistry::release(void const* const object)
{
    return remove(object);
}

bool BindingRegistry::remove(void const* const object)
{
    FooRegistry& table = registry();
    COSInterface* const host = find(object);
    if (!host)
        return false;
    if (table.history()) // while nothing is done: it may be out of memory
        table.history()->unbound.emplace(host, object);
    return table.unbind(object, host);
}

bool BindingRegistry::retract(void const* const object)
{
    if (!foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive())
        return false;
    FooRegistry* const table = HvmScoped<FooRegistry>::find(); // none is made: destructors must not need memory
    if (!table)
        return false;
    auto const found = table->find(object);
    if (found == table->end())
        return false;
    bool const isTold = std::exchange(found->second->retracted, true);
    COSInterfacePtr host = isTold ? nullptr : found->second->host;
    table->erase(object, nullptr);
    if (host)
        host->setValid(false); // with which go its share and what handles hold
    return true;
}

} // namespace orbis::factory::basic
