#include "orbis/factory/base/export.hpp"

#include "marshal/messages.hpp"
#include "module/PerHVMInitialization.hpp"
#include "module/functionTable.hpp"
#include "samples/RootPackage.hpp"

#include "orbis/COSNameID.hpp"
#include "orbis/COSPackage.hpp"
#include "orbis/COSPackageInfo.hpp"

using namespace orbis::factory;

extern "C" {

ORBIS_FACTORY_API void VXInitialize_orbis_factory()
{
    if (!PerHVMInitialization<RootPackage>::set())
        return;
    try {
        addMessages();
        orbis::COSPackage::addPackage(new RootPackage);
    } catch (...) {
        PerHVMInitialization<RootPackage>::clear();
        throw;
    }
}

ORBIS_FACTORY_API void VXTerminate_orbis_factory()
{
    if (!PerHVMInitialization<RootPackage>::isSet())
        return;
    orbis::COSPackage::removePackage(orbis::COSNameID("orbis_factory"));
    PerHVMInitialization<RootPackage>::clear();
}

ORBIS_FACTORY_API void const* QueryVXFcnTable_orbis_factory()
{
    return functionTable();
}
}
