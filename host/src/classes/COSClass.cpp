#include "orbis/COSClass.hpp"

#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"

#include "host_extensions/host_extensions.hpp"

namespace orbis {

using velmara::Machine;

COSClass* COSClass::getClass(COSNameID const& name)
{
    Machine* const machine = Machine::current();
    velmara::Class* const cls = machine ? machine->packages().findClass(name.interned()) : nullptr;
    if (cls && !cls->isReady())
        cls->ensureReady();
    return cls;
}

void COSClass::addGlobalClass(COSClassInfo* info)
{
    std::unique_ptr<COSClassInfo> owned(info);
    Machine& machine = Machine::required();
    if (!owned)
        velmara::throwHostError("VELMARA:class", "null");
    machine.packages().addClass(std::move(owned), machine.packages().root());
}

} // namespace orbis

namespace orbis::host_extensions {

void setSuperclasses(COSClass* cls, std::span<COSNameID const> superclasses)
{
    if (!cls)
        velmara::throwHostError("VELMARA:class", "null");
    static_cast<velmara::Class*>(cls)->setSuperclasses(superclasses);
}

void addEnumerator(COSClass* cls, char const* name, std::int64_t value)
{
    if (!cls)
        velmara::throwHostError("VELMARA:class", "null");
    static_cast<velmara::Class*>(cls)->addEnumerator(name ? name : "", value);
}

COSInterfacePtr getEnumerator(COSNameID const& className, char const* name)
{
    auto const* const cls = static_cast<velmara::Class const*>(COSClass::getClass(className));
    if (!cls || !cls->isReady() || !name)
        return nullptr;
    velmara::Enumerator const* const found = cls->contents().enumerators.find(name);
    return found ? found->host() : nullptr;
}

Enumerator const* describeEnumerator(COSInterface const* object)
{
    auto const* const enumerator = static_cast<velmara::Object const*>(object);
    if (!enumerator || !enumerator->isEnumerator() || !enumerator->classOf())
        return nullptr;
    return &velmara::Class::of(enumerator->classOf())->contents().enumerators.at(enumerator->enumerator());
}

} // namespace orbis::host_extensions
