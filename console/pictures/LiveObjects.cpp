#include "pictures/LiveObjects.hpp"

#include "handles/ContainedObjects.hpp"

#include <unordered_set>

namespace velmara::console {

namespace {

template <class Visit>
void visitLiveObjects(Hvm& hvm, Visit const& visit)
{
    hvm.forEachObject([&](orbis::COSInterface& object, ObjectRecord const& record) {
        if (record.owner != "enumerator")
            visit(object, record);
    });
}

} // namespace

std::vector<ObjectCounts> countLiveObjects(Hvm& hvm)
{
    std::vector<ObjectCounts> counts;
    visitLiveObjects(hvm, [&](orbis::COSInterface&, ObjectRecord const& record) {
        if (counts.empty() || counts.back().className != record.className)
            counts.push_back({.className = record.className, .owner = record.owner, .handles = {}});
        ObjectCounts& count = counts.back();
        ++count.objects;
        count.invalid += record.isValid ? 0 : 1;
        count.handles.strong += record.externalReferences;
        count.handles.weak += record.weakReferences;
    });
    return counts;
}

std::vector<orbis::COSInterfacePtr> liveObjects(Hvm& hvm)
{
    std::vector<orbis::COSInterfacePtr> objects;
    visitLiveObjects(hvm, [&](orbis::COSInterface& object, ObjectRecord const& record) {
        if (record.externalReferences + record.internalReferences > 0)
            objects.emplace_back(&object);
    });
    return objects;
}

std::vector<orbis::COSInterfacePtr> destroyedObjects(HostContext& host)
{
    std::vector<orbis::COSInterfacePtr> objects;
    std::unordered_set<orbis::COSInterface const*> seen;
    visitLiveObjects(host.hvm(), [&](orbis::COSInterface& object, ObjectRecord const& record) {
        if (!record.isValid)
            seen.insert(&object);
    });
    host.heldArrays().forEach([&](hvArray_tag const* array) {
        if (!isValid(array)) // also what holds no objects
            visitObjects(array, [&](orbis::COSInterface* object) {
                if (object && seen.insert(object).second &&
                    !isValid(ArrayPtr(orbis::omCreateORBISScalar(object)).get()))
                    objects.emplace_back(object);
            });
    });
    return objects;
}

HandlesToObjects handlesToObjects(Hvm& hvm)
{
    HandlesToObjects handles;
    visitLiveObjects(hvm, [&](orbis::COSInterface& object, ObjectRecord const& record) {
        if (record.externalReferences + record.weakReferences > 0)
            handles[&object] = {record.externalReferences, record.weakReferences};
    });
    return handles;
}

} // namespace velmara::console
