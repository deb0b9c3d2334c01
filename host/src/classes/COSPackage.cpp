#include "orbis/COSPackage.hpp"

#include "api/HvmState.hpp"
#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"

#include "orbis/COSClass.hpp"

namespace orbis {

using velmara::HvmState;

void COSPackage::addPackage(COSPackageInfo* info)
{
    std::unique_ptr<COSPackageInfo> owned(info);
    HvmState& machine = HvmState::required();
    if (!owned)
        velmara::throwHostError("VELMARA:package", "null");
    char const* const name = owned->getName();
    std::string const fullName = name ? name : "";
    machine.packages().addPackage(std::move(owned), fullName);
}

COSPackage* COSPackage::getPackage(COSNameID const& name)
{
    HvmState* const machine = HvmState::current();
    return machine && name.interned()->length != 0 ? machine->packages().findPackage(name.interned()->view()) : nullptr;
}

void COSPackage::removePackage(COSNameID const& name)
{
    if (HvmState* const machine = HvmState::current())
        machine->packages().removePackage(name.interned());
}

COSClass* COSClass::getClass(COSNameID const& name)
{
    HvmState* const machine = HvmState::current();
    velmara::Class* const cls = machine ? machine->packages().findClass(name.interned()) : nullptr;
    if (cls && !cls->isReady())
        cls->makeReady();
    return cls;
}

void COSClass::addGlobalClass(COSClassInfo* info)
{
    std::unique_ptr<COSClassInfo> owned(info);
    HvmState& machine = HvmState::required();
    if (!owned)
        velmara::throwHostError("VELMARA:class", "null");
    machine.packages().addClass(std::move(owned), machine.packages().root());
}

} // namespace orbis

namespace velmara {

void Package::addSubPackage(orbis::COSPackageInfo* info)
{
    std::unique_ptr<orbis::COSPackageInfo> owned(info);
    requireOpen();
    if (!owned)
        throwHostError("VELMARA:package", "null");
    char const* const name = owned->getName();
    std::string const own = name ? name : "";
    std::string const full = std::string(fullName()) + "." + own;
    if (own.find('.') != std::string::npos)
        throwHostError("VELMARA:package", "name", {own, "the name of a package in another one holds no dot"});
    tree_.addPackage(std::move(owned), full);
}

void Package::addClass(orbis::COSClassInfo* info)
{
    std::unique_ptr<orbis::COSClassInfo> owned(info);
    requireOpen();
    if (!owned)
        throwHostError("VELMARA:class", "null");
    tree_.addClass(std::move(owned), *this);
}

} // namespace velmara
