#include "account/Account.hpp"

#include "account/snapshotOrder.hpp"
#include "classes/PackageTree.hpp"

#include <algorithm>

namespace velmara {

Account::Account(Machine& machine) : machine_(machine)
{
    add(machine.packages().root());
    machine.recordedArrays().forEach([this](OriginLink const& link) { add(Array::of(link), link.origin()); });
}

void Account::add(Package const& package)
{
    for (auto const& cls : package.classes())
        cls->objects().forEach([this](Object const& object) { add(object); });
    for (auto const& inner : package.packages())
        add(*inner);
}

void Account::add(Object const& object)
{
    if (object.isEnumerator())
        return;
    SnapshotRow& sum = row(object.className()->view(), object.origin());
    ++sum.objects;
    object.forEachNativeObject([&](Name, void*) { ++sum.bindings; });
    sum.bytes += static_cast<std::int64_t>(object.memory());
}

void Account::add(Array const& array, OriginTable::Number origin)
{
    SnapshotRow& sum = row(array.className(), origin);
    ++sum.arrays;
    sum.bytes += static_cast<std::int64_t>(Array::memory());
    if (std::size_t const bytes = array.payloadMemory(); bytes != 0 && payloads_.insert(array.elements()).second)
        sum.bytes += static_cast<std::int64_t>(bytes);
}

SnapshotRow& Account::row(std::string_view className, OriginTable::Number origin)
{
    return rows_[{className, origin}];
}

Snapshot Account::snapshot() const
{
    Snapshot taken;
    taken.rows.reserve(rows_.size());
    for (auto const& [key, sum] : rows_) {
        SnapshotRow& row = taken.rows.emplace_back(sum);
        row.className = key.first;
        row.origin = machine_.origins().text(key.second);
    }
    std::ranges::sort(taken.rows, isListedBefore);
    return taken;
}

} // namespace velmara
