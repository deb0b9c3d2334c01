#include "classes/DefinedEnumeration.hpp"

#include "classes/Class.hpp"

namespace velmara {

DefinedEnumeration::DefinedEnumeration(std::string_view name, std::span<EnumeratorRecord const> enumerators)
    : name_(name),
      enumerators_(enumerators.begin(), enumerators.end())
{
}

void DefinedEnumeration::initializeClass(orbis::COSClass* cls)
{
    for (EnumeratorRecord const& enumerator : enumerators_)
        static_cast<Class*>(cls)->addEnumerator(enumerator.name, enumerator.value);
}

} // namespace velmara
