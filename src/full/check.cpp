#include "orbis/factory/check.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"

#include "basic/HostDependents.hpp"
#include "basic/NativeStorage.hpp"
#include "basic/addressText.hpp"
#include "full/orphanedObjects.hpp"

#include "host_extensions/NativeOwner.hpp"
#include "host_extensions/host_extensions.hpp"
#include "libkwfoundation_usm/Detail.hpp"

#include <algorithm>
#include <string_view>
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

/// A native object that its host object deletes.
struct Owned {
    RecordedObject record;
    basic::NativeExtents::Extent extent;
    bool isOwned;
};

std::string textOf(Owned const& owned)
{
    return "the native object " + addressText(owned.record.native) + " of " + owned.record.className;
}

/// No host object owns what it could not delete.
std::string checkOwned(HostView const& hosts)
{
    basic::NativeStorage const storage;
    std::vector<Owned> objects;
    for (RecordedObject const& record : hosts.records()) {
        host_extensions::NativeOwner const* const owner = host_extensions::nativeOwnerOf(COSNameID(record.className));
        if (!owner || !basic::registry().isBoundTo(record.native, record.host))
            continue; // a value, or released
        auto const* const extents = dynamic_cast<basic::NativeExtents const*>(owner);
        bool const isOwned = std::string_view(owner->nativeOwner()) == "host" && !dependents().shares.has(record.host);
        objects.push_back({record,
                           extents ? extents->extentOf(const_cast<void*>(record.native))
                                   : basic::NativeExtents::Extent{static_cast<char const*>(record.native), 0},
                           isOwned});
    }
    std::ranges::sort(objects, std::less(), [](Owned const& object) { return object.extent.begin; });
    Owned const* outer = nullptr; // the one that ends last
    for (Owned const& object : objects) {
        if (char const* const place = object.isOwned ? storage.placeOf(object.record.native) : nullptr)
            return textOf(object) + " belongs to its host object, and lies " + place;
        bool const isInside = outer && object.extent.begin != outer->extent.begin &&
                              object.extent.begin < outer->extent.begin + outer->extent.size;
        if (isInside && object.isOwned)
            return textOf(object) + " belongs to its host object, and lies inside " + textOf(*outer);
        if (!isInside)
            outer = &object;
    }
    return {};
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
        found = checkOwned(hosts);
    if (found.empty())
        found = checkHandles();
    return found.empty() ? checkKept() : found;
}

} // namespace orbis::factory
