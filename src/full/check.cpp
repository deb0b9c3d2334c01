#include "orbis/factory/check.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"

#include "basic/HostDependents.hpp"
#include "basic/addressText.hpp"
#include "full/orphanedObjects.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libkwfoundation_usm/Detail.hpp"

#include <algorithm>
#include <vector>

namespace orbis::factory {

namespace {

using host_extensions::RecordedObject;

/// What host objects record, sorted by host object.
class HostView {
public:
    HostView() : records_(host_extensions::recordedObjects())
    {
        std::ranges::sort(records_, std::less(), &RecordedObject::host);
    }

    std::vector<RecordedObject> const& records() const { return records_; }

    /// What the object records; nothing for one that is destroyed or invalid.
    auto of(COSInterface const* host) const
    {
        return std::ranges::equal_range(records_, host, std::less(), &RecordedObject::host);
    }

private:
    std::vector<RecordedObject> records_;
};

basic::HostDependents& dependents()
{
    return basic::registry().requireDependents();
}

std::string checkEntry(void const* object, basic::RegistryEntry const& entry, HostView const& hosts)
{
    std::string const bound = "the native object " + addressText(object);
    if (entry.object != object)
        return bound + " is bound under another address, " + addressText(entry.object);
    if (entry.retracted)
        return bound + " is bound though its host object was told of its end";
    auto const records = hosts.of(entry.host);
    if (records.empty())
        return bound + " is bound to a host object that has ended, or is invalid: " + addressText(entry.host);
    if (std::ranges::find(records, object, &RecordedObject::native) == records.end() &&
        !dependents().superseded.contains({entry.host, object}))
        return bound + " is bound to a host object of " + records.front().className + " that stands for another, " +
               addressText(records.front().native);
    return {};
}

std::string checkBindings(HostView const& hosts)
{
    for (auto const& [object, entry] : basic::registry())
        if (std::string found = checkEntry(object, *entry, hosts); !found.empty())
            return found;
    return {};
}

/// A native object that a host object records is bound to that one or to none, except where that was deliberate.
std::string checkRecords(HostView const& hosts)
{
    basic::FooRegistry const& table = basic::registry();
    auto const* const history = table.history();
    if (!history)
        return {}; // mistakes cannot be told from deliberate rebinding
    for (RecordedObject const& record : hosts.records()) {
        auto const found = table.find(record.native);
        bool const isOthers = found != table.end() && found->second->host != record.host;
        if (isOthers && !history->unbound.contains({record.host, record.native}))
            return "a host object of " + std::string(record.className) + " stands for the native object " +
                   addressText(record.native) + ", which is bound to another host object";
    }
    return {};
}

std::string checkShares(HostView const& hosts)
{
    std::string found;
    dependents().shares.forEachHost([&](COSInterface const* host) {
        if (hosts.of(host).empty())
            found = "a host object that has ended, or is invalid, has a share in a native object: " + addressText(host);
    });
    return found;
}

std::string checkHandles()
{
    std::string found;
    basic::FooRegistry const& table = basic::registry();
    dependents().handles.forEach([&](basic::HandleReference const& reference) {
        if (!table.isBoundTo(reference.bound, reference.host))
            found = "a handle at " + addressText(reference.handle) + " holds a host object by a binding that is gone";
    });
    return found;
}

std::string checkKept()
{
    void const* orphaned = full::findOrphanedShareable();
    if (!orphaned)
        orphaned = full::findOrphanedStdShareable();
    return orphaned ? "the shared object " + addressText(orphaned) + " is kept for a host object, but has none"
                    : std::string();
}

} // namespace

std::string check()
{
    if (!foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive())
        return {};
    dependents().handles.releaseDeferred();
    HostView const hosts;
    std::string found = checkBindings(hosts);
    if (found.empty())
        found = checkRecords(hosts);
    if (found.empty())
        found = checkShares(hosts);
    if (found.empty())
        found = checkHandles();
    return found.empty() ? checkKept() : found;
}

} // namespace orbis::factory
