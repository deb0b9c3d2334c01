#include "orbis/COSPackage.hpp"

#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"

namespace orbis {

using velmara::Machine;

void COSPackage::addPackage(COSPackageInfo* info)
{
    std::unique_ptr<COSPackageInfo> owned(info);
    Machine& machine = Machine::required();
    if (!owned)
        velmara::throwHostError("VELMARA:package", "null");
    char const* const name = owned->getName();
    std::string const fullName = name ? name : "";
    machine.packages().addPackage(std::move(owned), fullName);
}

COSPackage* COSPackage::getPackage(COSNameID const& name)
{
    Machine* const machine = Machine::current();
    return machine && name.interned()->length != 0 ? machine->packages().findPackage(name.interned()->view()) : nullptr;
}

void COSPackage::removePackage(COSNameID const& name)
{
    if (Machine* const machine = Machine::current())
        machine->packages().removePackage(name.interned());
}

} // namespace orbis
