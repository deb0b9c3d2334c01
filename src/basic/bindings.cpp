#include "orbis/factory/detail/bindings.hpp"

#include "orbis/factory/CopyableSupport.hpp"
#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

#include "additions/NativeOwner.hpp"
#include "orbis/objectArrays.hpp"

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

[[gnu::noinline]] bool basic::FooRegistry::isBoundTo(void const* object, COSInterface const* host) const noexcept
{
    auto const found = find(object);
    return found != end() && found->second->host == host;
}

bool basic::FooRegistry::bindInPlaceOf(void const* previous, void* object, COSInterface* host,
                                       COSNameID const& className)
{
    if (previous && previous != object && isBoundTo(previous, host))
        superseded.emplace(host, previous);
    return !object || bind(object, host, className);
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

std::optional<COSInterface*> basic::FooRegistry::erase(void const* object, COSInterface const* host) noexcept
{
    node_type mapping = extract(object);
    if (!mapping) [[unlikely]]
        return std::nullopt;
    COSInterface* const bound = mapping.mapped()->host;
    if (bound != host && host) [[unlikely]] {
        putBack(std::move(mapping));
        return std::nullopt;
    }
    if (!spare_) [[likely]]
        spare_ = std::move(mapping);
    else
        delete mapping.mapped();
    if (history) [[unlikely]]
        history->classNames.erase(object);
    return bound;
}

bool basic::FooRegistry::unbind(void const* object, COSInterface const* host) noexcept
{
    std::optional<COSInterface*> const bound = erase(object, host);
    if (bound && !handles.empty()) [[unlikely]]
        handles.release(*bound, object);
    return bound.has_value();
}

/// Nothing can fail: there is room for what was there.
[[gnu::noinline]] void basic::FooRegistry::putBack(node_type mapping) noexcept
{
    insert(end(), std::move(mapping));
}

void basic::FooRegistry::Observer::nativeForgotten(COSInterface* host, void const* native, bool isDestroyed) noexcept
{
    if (!table_.isBoundTo(native, host))
        return;
    if (table_.history && isDestroyed)
        table_.reportBound(native);
    table_.erase(native, host);
}

void basic::FooRegistry::Observer::objectGone(COSInterface* host) noexcept
{
    if (!table_.superseded.empty() || !table_.handles.empty() || !table_.shares.empty() || table_.history)
        table_.forgetHost(host);
}

void basic::FooRegistry::Observer::callBoundary() noexcept
{
    table_.handles.releaseDeferred();
}

[[gnu::noinline]] void basic::FooRegistry::forgetHost(COSInterface* host) noexcept
{
    for (auto it = superseded.lower_bound({host, nullptr}); it != superseded.end() && it->first == host;) {
        erase(it->second, host);
        it = superseded.erase(it);
    }
    if (history) {
        auto& unbound = history->unbound;
        for (auto it = unbound.lower_bound({host, nullptr}); it != unbound.end() && it->first == host;)
            it = unbound.erase(it);
    }
    // Both run foreign code.
    handles.release(host, nullptr);
    shares.drop(host);
}

void basic::FooRegistry::record(COSInterface* host, COSNameID const& className, void* object)
{
    try {
        host->setNativeObject(className, object);
    } catch (...) {
        if (host->getNativeObject(className) != object)
            unbind(object, host);
        throw;
    }
}

namespace {

/// Stale binding: the previous object at the address was destroyed without `retract`, or the constructor itself handed
/// its object out. With two host objects, the end of one would leave the other one on freed memory.
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
    if (!table.bind(object, host, className)) [[unlikely]]
        rebind(host, className, object);
    table.record(host, className, object);
}

[[gnu::flatten]] void* detail::forgetBinding(COSInterface const* host, void* object)
{
    basic::FooRegistry& table = basic::HvmScoped<basic::FooRegistry>::get();
    return table.unbind(object, host) ? object : nullptr;
}

void detail::discardUnbound(void* object, char const* className) noexcept
{
    try {
        auto const* const table = basic::HvmScoped<basic::FooRegistry>::find();
        if (!object || (table && table->count(object) != 0))
            return;
        if (additions::NativeOwner* const owner = additions::nativeOwnerOf(COSNameID(className)))
            owner->discardNative(object);
    } catch (...) {
        // The class cannot be described: what it would do with the object is not known.
    }
}

void detail::releaseResult(void const* object, hvArray_tag const* row) noexcept
{
    auto* const table = basic::HvmScoped<basic::FooRegistry>::find(); // none is made: it may be out of memory
    if (!table)
        return;
    auto const found = table->find(object);
    if (found == table->end())
        return;
    COSInterface* const host = found->second->host;
    int elements = 0;
    for (std::size_t i = 0; i < row->get_number_of_elements(); ++i)
        elements += static_cast<COSInterface*>(omGetArrayElement(row, i)) == host;
    if (host->getExternalReferenceCount() == 0 && host->getInternalReferenceCount() == elements)
        table->unbind(object, host);
}

} // namespace orbis::factory
