#include "dispatch/objectFit.hpp"

#include "arrays/emptyInput.hpp"
#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"
#include "objects/Object.hpp"

#include <algorithm>

namespace velmara {

namespace {

Fit hierarchyFit(ObjectClass* objectClass, Name ancestor)
{
    Class const* const cls = Class::of(objectClass);
    int const distance = cls && cls->isReady() ? cls->distanceTo(ancestor) : -1;
    return distance < 0 ? noFit : fitOfDistance(distance);
}

bool isEnumeration(Name className)
{
    Machine* const machine = Machine::current();
    Class const* const cls = machine ? machine->packages().findClass(className) : nullptr;
    return cls && cls->isEnumeration();
}

Fit emptyFit(Array const& input)
{
    return isNothing(input) ? convertedFit : noFit;
}

} // namespace

Fit classFit(Name className, Name ancestor)
{
    if (className == ancestor)
        return exactFit;
    Machine* const machine = Machine::current();
    return machine ? hierarchyFit(machine->packages().findPublishedClass(className), ancestor) : noFit;
}

Fit firstObjectFit(Name className, Array const& input)
{
    Object const* const first =
        input.classID() == hvOBJECT_CLASS && input.size() != 0 ? input.objects().front() : nullptr;
    if ((!first || input.size() != 1) && isEnumeration(className))
        return noFit;
    if (!first)
        return input.classID() == hvOBJECT_CLASS ? classFit(input.objectClass(), className) : emptyFit(input);
    return first->className() == className ? exactFit : hierarchyFit(first->classOf(), className);
}

Fit objectFit(Name className, Array const& input)
{
    return input.classID() == hvOBJECT_CLASS && input.size() > 1 ? noFit : firstObjectFit(className, input);
}

Fit objectVectorFit(Name element, Array const& input)
{
    if (input.classID() != hvOBJECT_CLASS)
        return isEnumeration(element) ? noFit : emptyFit(input);
    if (std::ranges::count(input.objects(), nullptr) != 0 && isEnumeration(element))
        return noFit;
    Fit const fit = classFit(input.objectClass(), element);
    if (fit != noFit || input.size() == 0)
        return input.size() == 1 ? fit - 1 : fit;
    bool const allFit = std::ranges::all_of(input.objects(), [element](Object const* object) {
        return !object || object->className() == element || hierarchyFit(object->classOf(), element) != noFit;
    });
    return allFit ? convertedFit : noFit;
}

} // namespace velmara
