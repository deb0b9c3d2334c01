#include "orbis/factory/detail/bindings.hpp"

#include "orbis/factory/CopyableSupport.hpp"
#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

#include <memory>
#include <utility>

namespace orbis::factory {

void basic::FooRegistry::bind(void* object, COSInterface* host, COSNameID const& className)
{
    if (history) [[unlikely]]
        remember(object, host, className);
    if (!spare_) [[unlikely]]
        return bindFirst(object, host);
    spare_.key() = object;
    *spare_.mapped() = RegistryEntry(object, host);
    insert(end(), std::move(spare_)); // with a place given, what is not inserted stays where it is
}

/// The same where no mapping is kept.
[[gnu::noinline]] void basic::FooRegistry::bindFirst(void* object, COSInterface* host)
{
    auto entry = std::make_unique<RegistryEntry>(object, host);
    if (emplace(object, entry.get()).second)
        static_cast<void>(entry.release());
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

void basic::FooRegistry::unbind(iterator mapping)
{
    if (!spare_) [[likely]] {
        spare_ = extract(mapping);
        return;
    }
    std::unique_ptr<RegistryEntry> const entry(mapping->second);
    erase(mapping);
}

// These two are on the way of every object from its construction to its end: what they call stands in them.
[[gnu::flatten]] void detail::bindConstructed(COSInterface* host, COSNameID const& className, void* object, bool store)
{
    CopyableSupport::removeFromUnconstructedSet(object);
    host->setNativeObject(className, object);
    if (object && store)
        basic::HvmScoped<basic::FooRegistry>::get().bind(object, host, className);
}

[[gnu::flatten]] bool detail::forgetBinding(COSInterface const* host, void const* object)
{
    basic::FooRegistry& table = basic::HvmScoped<basic::FooRegistry>::get();
    auto const found = object ? table.find(object) : table.end();
    if (found == table.end() || (host && found->second->host != host))
        return false;
    COSInterface* const bound = found->second->host;
    table.unbind(found);
    if (!table.handles.empty())
        table.giveBackHandles(bound);
    return true;
}

} // namespace orbis::factory
