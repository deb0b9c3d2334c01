#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/callTargets.hpp"
#include "arrays/Array.hpp"
#include "classes/Class.hpp"

#include "orbis/objectArrays.hpp"

#include <algorithm>

namespace velmara {

namespace {

/// The objects that the property refers to, held.
class ReferredObjects {
public:
    ReferredObjects(Property const& property, Object& object)
    {
        auto objects = property.info->getInterfaces(nullptr, &object);
        while (objects.hasMoreElements())
            hold(objects.nextElement());
        auto arrays = property.info->getVXArrays(nullptr, &object);
        while (arrays.hasMoreElements())
            holdAll(arrays.nextElement());
    }

    std::vector<orbis::COSInterfacePtr> const& objects() const { return objects_; }

private:
    void hold(orbis::COSInterface* object)
    {
        if (object)
            objects_.emplace_back(object);
    }

    void holdAll(hvArray_tag const* array)
    {
        if (!array || Array::of(array)->classID() != hvOBJECT_CLASS)
            return;
        for (Object* const object : Array::of(array)->objects())
            hold(object);
    }

    std::vector<orbis::COSInterfacePtr> objects_;
};

std::vector<Reference> findReferences(Machine& machine, hvArray_tag* array)
{
    Object* const object = requireObject(machine, array);
    std::vector<Reference> found;
    if (!object)
        return found;
    // The queries run native code, which may finalize the object or add members; old tables stay until the call
    // returns.
    orbis::COSInterfacePtr const held(object);
    Class::of(object->classOf())->tables().propertiesByName.forEach([&](Name name, Property const* property) {
        if (!property->canBeRead || property->traits.isStatic || !property->traits.canContainInterfaces)
            return;
        ReferredObjects const referredObjects(*property, *object);
        for (orbis::COSInterfacePtr const& referred : referredObjects.objects())
            found.push_back({name->string(), ArrayPtr(orbis::omCreateORBISScalar(referred))});
    });
    std::ranges::stable_sort(found, {}, &Reference::property);
    return found;
}

} // namespace

std::vector<Reference> Hvm::references(hvArray_tag* object)
{
    return callInto(*state_, [&] { return findReferences(*state_, object); });
}

} // namespace velmara
