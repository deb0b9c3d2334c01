#include "classes/classHierarchy.hpp"

#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"
#include "objects/Object.hpp"

#include <algorithm>

namespace velmara {

namespace {

bool isOfClass(Object const* object, Name cls)
{
    return !object || object->className() == cls || (object->classOf() && Class::of(object->classOf())->isA(cls));
}

} // namespace

bool isSubclass(Name cls, Name ancestor)
{
    if (cls == ancestor)
        return true;
    Machine* const machine = Machine::current();
    Class const* const found = machine && cls ? machine->packages().findPublishedClass(cls) : nullptr;
    return found && found->isReady() && found->isA(ancestor);
}

Name commonClass(std::span<Object* const> objects)
{
    auto const first = std::ranges::find_if(objects, [](Object const* object) { return object != nullptr; });
    if (first == objects.end())
        return nullptr;
    auto const isCommon = [objects](Name cls) {
        return std::ranges::all_of(objects, [cls](Object const* object) { return isOfClass(object, cls); });
    };
    if (isCommon((*first)->className()))
        return (*first)->className();
    if (ObjectClass const* const cls = (*first)->classOf())
        for (ObjectClass const* const ancestor : cls->linearization())
            if (isCommon(ancestor->name()))
                return ancestor->name();
    return nullptr;
}

} // namespace velmara
