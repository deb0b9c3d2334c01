#include "basic/HostDependents.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"

#include "basic/addressText.hpp"

#include "host_extensions/host_extensions.hpp"

namespace orbis::factory::basic {

void BindingHistory::remember(FooRegistry const& table, void const* object, COSInterface* host,
                              COSNameID const& className)
{
    auto const found = table.find(object);
    if (found == table.end()) {
        classNames[object] = static_cast<COSString>(className).c_str();
        unbound.erase({host, object});
    } else if (found->second->host != host) {
        unbound.emplace(host, object);
    }
}

void BindingHistory::forget(void const* object) noexcept
{
    classNames.erase(object);
}

void BindingHistory::report(void const* object) const noexcept
{
    try {
        std::string const text = "the native object " + addressText(object) + " is still bound as ";
        host_extensions::reportLeak((text + classNames.at(object)).c_str());
    } catch (...) {
        host_extensions::reportLeak("a native object is still bound");
    }
}

void HostDependents::forgetHost(FooRegistry& table, COSInterface* host) noexcept
{
    for (auto it = superseded.lower_bound({host, nullptr}); it != superseded.end() && it->first == host;) {
        table.erase(it->second, host);
        it = superseded.erase(it);
    }
    if (history) {
        auto& unbound = history->unbound;
        for (auto it = unbound.lower_bound({host, nullptr}); it != unbound.end() && it->first == host;)
            it = unbound.erase(it);
    }
    // Last, because they run foreign code.
    shares.invalidateParts(host);
    handles.release(host, nullptr);
    shares.drop(host);
}

} // namespace orbis::factory::basic
