#include "orbis/factory/detail/bindings.hpp"

#include "orbis/factory/CopyableSupport.hpp"
#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

#include <memory>
#include <utility>

namespace orbis::factory {

bool basic::FooRegistry::bind(void* object, COSInterface* host, COSNameID const& className)
{
    if (history) [[unlikely]]
        remember(object, host, className);
    if (!spare_) [[unlikely]]
        return bindFirst(object, host);
    RegistryEntry& entry = *spare_.mapped();
    void const*& key = spare_.key();
    entry = RegistryEntry(object, host);
    key = object;
    insert(end(), std::move(spare_)); // with a place given, what is not inserted stays where it is
    return spare_.empty() || isBoundTo(object, host);
}

/// The same where no mapping is kept.
[[gnu::noinline]] bool basic::FooRegistry::bindFirst(void* object, COSInterface* host)
{
    auto entry = std::make_unique<RegistryEntry>(object, host);
    if (!emplace(object, entry.get()).second)
        return isBoundTo(object, host);
    static_cast<void>(entry.release());
    return true;
}

[[gnu::noinline]] bool basic::FooRegistry::isBoundTo(void const* object, COSInterface const* host) const
{
    auto const found = find(object);
    return found != end() && found->second->host == host;
}

[[gnu::noinline]] void basic::FooRegistry::remember(void const* object, COSInterface* host, COSNameID const& className)
{
    auto const found = find(object);
    if (found == end()) {
        history->classNames[object] = static_cast<COSString>(className).c_str();
        history->unbound.erase({host, object});
    } else if (found->second->host != host) {
        history->unbound.emplace(host, object);
    }
}

bool basic::FooRegistry::unbind(void const* object, COSInterface const* host)
{
    node_type mapping = extract(object);
    if (!mapping) [[unlikely]]
        return false;
    COSInterface* const bound = mapping.mapped()->host;
    if (bound != host && host) [[unlikely]] {
        putBack(std::move(mapping));
        return false;
    }
    if (!spare_) [[likely]]
        spare_ = std::move(mapping);
    else
        delete mapping.mapped();
    if (!handles.empty()) [[unlikely]]
        handles.giveBack(bound);
    return true;
}

/// Nothing can fail: there is room for what was there.
[[gnu::noinline]] void basic::FooRegistry::putBack(node_type mapping) noexcept
{
    insert(end(), std::move(mapping));
}

namespace {

/// The host object that stood for the address is one of an object that died untold, or the constructor itself handed
/// its object out: with two of them, the end of one would leave the other one on freed memory.
[[gnu::noinline]] void rebind(COSInterface* host, COSNameID const& className, void* object)
{
    basic::BindingRegistry::retract(object);
    basic::registry().bind(object, host, className);
}

} // namespace

// These two are on the way of every object from its construction to its end: what they call stands in them.
[[gnu::flatten]] void detail::bindConstructed(COSInterface* host, COSNameID const& className, void* object)
{
    basic::FooRegistry& table = basic::HvmScoped<basic::FooRegistry>::get();
    if (table.isAnyUnconstructed) [[unlikely]]
        CopyableSupport::removeFromUnconstructedSet(object);
    host->setNativeObject(className, object);
    if (!table.bind(object, host, className)) [[unlikely]]
        rebind(host, className, object);
}

[[gnu::flatten]] void* detail::forgetBinding(COSInterface const* host, void* object)
{
    basic::FooRegistry& table = basic::HvmScoped<basic::FooRegistry>::get();
    return table.unbind(object, host) ? object : nullptr;
}

} // namespace orbis::factory
