#include "system/objectFit.hpp"

#include "system/Class.hpp"
#include "system/HvmState.hpp"
#include "system/Object.hpp"
#include "system/PackageTree.hpp"
#include "system/emptyInput.hpp"

#include <algorithm>

namespace velmara {

namespace {

Fit hierarchyFit(Class const* cls, Name ancestor)
{
    int const distance = cls && cls->isReady() ? cls->distanceTo(ancestor) : -1;
    return distance < 0 ? noFit : fitOfDistance(distance);
}

Fit classFit(Name className, Name ancestor)
{
    if (className == ancestor)
        return exactFit;
    HvmState* const machine = HvmState::current();
    return machine ? hierarchyFit(machine->packages().findPublishedClass(className), ancestor) : noFit;
}

Fit emptyFit(Array const& input)
{
    return isNothing(input) ? convertedFit : noFit;
}

} // namespace

Fit objectFit(Name className, Array const& input)
{
    if (input.classID() != hvOBJECT_CLASS)
        return emptyFit(input);
    Object const* const first = input.size() == 0 ? nullptr : input.objects().front();
    if (!first)
        return classFit(input.objectClass(), className);
    return first->className() == className ? exactFit : hierarchyFit(first->classOf(), className);
}

Fit objectVectorFit(Name element, Array const& input)
{
    if (input.classID() != hvOBJECT_CLASS)
        return emptyFit(input);
    Fit const fit = classFit(input.objectClass(), element);
    if (fit != noFit || input.size() == 0)
        return fit;
    bool const allFit = std::ranges::all_of(input.objects(), [element](Object const* object) {
        return !object || object->className() == element || hierarchyFit(object->classOf(), element) != noFit;
    });
    return allFit ? convertedFit : noFit;
}

} // namespace velmara
