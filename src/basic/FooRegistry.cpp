#include "orbis/factory/ownership/FooRegistry.hpp"

#include "orbis/factory/detail/bindings/bindings.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/CopyableSupport.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include "basic/HostDependents.hpp"

#include "host_extensions/host_extensions.hpp"

#include <utility>

namespace orbis::factory::basic {

FooRegistry::FooRegistry() : observer_(*this)
{
    if (host_extensions::reportsLeaks())
        requireDependents().history = std::make_unique<BindingHistory>();
    host_extensions::observeObjects(&observer_);
}

FooRegistry::~FooRegistry()
{
    host_extensions::observeObjects(nullptr);
    // Host objects are not notified of remaining entries, because they may be destroyed already.
    for (auto const& [object, entry] : *this) {
        if (history())
            history()->report(object);
        delete entry;
    }
    if (spare_)
        delete spare_.mapped();
}

HostDependents& FooRegistry::requireDependents()
{
    if (!dependents)
        dependents = std::make_unique<HostDependents>();
    return *dependents;
}

BindingHistory* FooRegistry::history() const noexcept
{
    return dependents ? dependents->history.get() : nullptr;
}

bool FooRegistry::bind(void* object, COSInterface* host, COSNameID const& className)
{
    if (history()) [[unlikely]]
        history()->remember(*this, object, host, className);
    if (!spare_) [[unlikely]]
        return bindFirst(object, host);
    RegistryEntry* const entry = spare_.mapped();
    spare_.key() = object;
    *entry = RegistryEntry(object, host);
    insert(end(), std::move(spare_)); // the overload with a hint leaves a node that it does not insert
    return spare_.empty() || isBoundTo(object, host);
}

/// `bind` without a spare mapping.
[[gnu::noinline]] bool FooRegistry::bindFirst(void* object, COSInterface* host)
{
    auto entry = std::make_unique<RegistryEntry>(object, host);
    if (!emplace(object, entry.get()).second)
        return isBoundTo(object, host);
    static_cast<void>(entry.release());
    return true;
}

[[gnu::noinline]] bool FooRegistry::isBoundTo(void const* object, COSInterface const* host) const noexcept
{
    auto const found = find(object);
    return found != end() && found->second->host == host;
}

void FooRegistry::bindInPlaceOf(void const* previous, void* object, COSInterface* host, COSNameID const& className)
{
    if (previous && previous != object && isBoundTo(previous, host))
        requireDependents().superseded.emplace(host, previous);
    if (object)
        bind(object, host, className);
}

void FooRegistry::record(COSInterface* host, COSNameID const& className, void* object)
{
    try {
        host->setNativeObject(className, object);
    } catch (...) {
        unbindUnrecorded(host, className, object);
        throw;
    }
}

[[gnu::noinline]] void FooRegistry::unbindUnrecorded(COSInterface const* host, COSNameID const& className,
                                                     void const* object)
{
    if (host->getNativeObject(className) != object)
        unbind(object, host);
}

bool FooRegistry::take(void const* object, COSInterface const* host, COSInterface*& bound) noexcept
{
    node_type mapping = extract(object);
    if (!mapping) [[unlikely]]
        return false;
    bound = mapping.mapped()->host;
    if (bound != host) [[unlikely]] {
        if (host) {
            putBack(std::move(mapping));
            return false;
        }
    }
    if (!spare_) [[likely]]
        spare_ = std::move(mapping);
    else
        delete mapping.mapped();
    return true;
}

/// Cannot fail: the table does not grow.
[[gnu::noinline]] void FooRegistry::putBack(node_type mapping) noexcept
{
    insert(end(), std::move(mapping));
}

bool FooRegistry::erase(void const* object, COSInterface const* host) noexcept
{
    COSInterface* bound;
    if (!take(object, host, bound))
        return false;
    if (history())
        history()->forget(object);
    return true;
}

bool FooRegistry::unbind(void const* object, COSInterface const* host) noexcept
{
    COSInterface* bound;
    if (!take(object, host, bound)) [[unlikely]]
        return false;
    if (dependents) [[unlikely]]
        dependents->forgetBinding(object, bound);
    return true;
}

void FooRegistry::Observer::nativeForgotten(COSInterface* host, void const* native, bool isDestroyed) noexcept
{
    if (!table_.isBoundTo(native, host))
        return;
    if (isDestroyed && table_.history())
        table_.history()->report(native);
    table_.erase(native, host);
}

void FooRegistry::Observer::objectGone(COSInterface* host) noexcept
{
    if (table_.dependents && !table_.dependents->empty())
        table_.dependents->forgetHost(table_, host);
}

void FooRegistry::Observer::callBoundary() noexcept
{
    if (table_.dependents)
        table_.dependents->handles.releaseDeferred();
}

FooRegistry& registry()
{
    return HvmScoped<FooRegistry>::get();
}

} // namespace orbis::factory::basic

namespace orbis::factory {

namespace {

/// Stale binding: the previous object at this address was destroyed without `retract`, or the constructor itself passed
/// its object to the host. The other host object becomes invalid, because destroying either would leave the other with
/// a dangling pointer.
[[gnu::noinline]] void rebind(COSInterface* host, COSNameID const& className, void* object)
{
    basic::BindingRegistry::retract(object);
    basic::registry().bind(object, host, className);
}

} // namespace

// Every handle object passes through these two, on construction and on destruction: flattened to save the calls.
[[gnu::flatten]] void detail::bindConstructed(COSInterface* host, COSNameID const& className, void* object)
{
    basic::FooRegistry& table = basic::HvmScoped<basic::FooRegistry>::get();
    if (table.dependents) [[unlikely]]
        CopyableSupport::removeFromUnconstructedSet(object);
    if (!table.bind(object, host, className)) [[unlikely]]
        rebind(host, className, object);
    table.record(host, className, object);
}

void* detail::forgetBinding(COSInterface const* host, void* object)
{
    return basic::HvmScoped<basic::FooRegistry>::get().unbind(object, host) ? object : nullptr;
}

[[gnu::flatten]] detail::ForgottenBinding detail::forgetBindingAndShare(COSInterface const* host, void* object)
{
    basic::FooRegistry& table = basic::HvmScoped<basic::FooRegistry>::get();
    bool const wasBound = table.unbind(object, host);
    bool const wasShared = table.dependents && table.dependents->shares.drop(host);
    return {wasBound && !wasShared ? object : nullptr, wasBound};
}

} // namespace orbis::factory
