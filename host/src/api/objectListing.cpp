#include "api/objectListing.hpp"

#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"

#include "additions/NativeOwner.hpp"

namespace velmara {

namespace {

std::string ownerOf(orbis::COSClassInfo const& info)
{
    if (!info.isHandle())
        return "value";
    if (info.isEnumeration())
        return "enumerator";
    auto const* const owner = dynamic_cast<orbis::additions::NativeOwner const*>(&info);
    return owner ? owner->nativeOwner() : "handle";
}

ObjectRecord record(Object const& object, std::string const& owner)
{
    return {.className = object.className()->string(),
            .owner = owner,
            .isValid = object.isValid(),
            .externalReferences = object.getExternalReferenceCount(),
            .internalReferences = object.getInternalReferenceCount(),
            .weakReferences = object.weakReferenceCount(),
            .nativeObject = object.ownNativeObject()};
}

void addObjects(Package const& package, std::vector<ObjectRecord>& listed)
{
    for (auto const& cls : package.classes()) {
        std::string const owner = ownerOf(cls->info());
        cls->objects().forEach([&](Object const& object) { listed.push_back(record(object, owner)); });
    }
    for (auto const& inner : package.packages())
        addObjects(*inner, listed);
}

} // namespace

std::vector<ObjectRecord> listObjects(Machine& machine)
{
    std::vector<ObjectRecord> listed;
    addObjects(machine.packages().root(), listed);
    return listed;
}

} // namespace velmara
