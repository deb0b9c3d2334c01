#include "dispatch/objectRank.hpp"

#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"
#include "objects/Object.hpp"

#include <algorithm>

namespace velmara {

namespace {

ConversionRank hierarchyRank(ObjectClass* objectClass, Name ancestor)
{
    Class const* const cls = Class::of(objectClass);
    int const distance = cls && cls->isReady() ? cls->distanceTo(ancestor) : -1;
    return distance < 0 ? notConvertible : rankOfDistance(distance);
}

bool isEnumeration(Name className)
{
    Machine* const machine = Machine::current();
    Class const* const cls = machine ? machine->packages().findClass(className) : nullptr;
    return cls && cls->isEnumeration();
}

ConversionRank emptyRank(Array const& input)
{
    return input.isEmptyDouble() ? convertedRank : notConvertible;
}

} // namespace

ConversionRank classRank(Name className, Name ancestor)
{
    if (className == ancestor)
        return exactRank;
    Machine* const machine = Machine::current();
    return machine ? hierarchyRank(machine->packages().findPublishedClass(className), ancestor) : notConvertible;
}

ConversionRank firstObjectRank(Name className, Array const& input)
{
    Object const* const first =
        input.classID() == hvOBJECT_CLASS && input.size() != 0 ? input.objects().front() : nullptr;
    if ((!first || input.size() != 1) && isEnumeration(className))
        return notConvertible;
    if (!first)
        return input.classID() == hvOBJECT_CLASS ? classRank(input.objectClass(), className) : emptyRank(input);
    return first->className() == className ? exactRank : hierarchyRank(first->classOf(), className);
}

ConversionRank objectRank(Name className, Array const& input)
{
    return input.classID() == hvOBJECT_CLASS && input.size() > 1 ? notConvertible : firstObjectRank(className, input);
}

ConversionRank objectVectorRank(Name element, Array const& input)
{
    if (input.classID() != hvOBJECT_CLASS)
        return isEnumeration(element) ? notConvertible : emptyRank(input);
    if (std::ranges::count(input.objects(), nullptr) != 0 && isEnumeration(element))
        return notConvertible;
    ConversionRank const rank = classRank(input.objectClass(), element);
    if (rank != notConvertible || input.size() == 0)
        return input.size() == 1 ? rank - 1 : rank;
    bool const allFit = std::ranges::all_of(input.objects(), [element](Object const* object) {
        return !object || object->className() == element || hierarchyRank(object->classOf(), element) != notConvertible;
    });
    return allFit ? convertedRank : notConvertible;
}

} // namespace velmara
