#include "samples/RootPackage.hpp"

#include "orbis/factory/basic/registry.hpp"
#include "orbis/factory/describeFunctions.hpp"

#include "module/rootPackage.hpp"
#include "samples/Adder.hpp"

#include "libut/libut.hpp"

namespace orbis::factory {

namespace {

/// Class infos are owned by the package from the moment they are handed over.
template <class ClassInfo>
void load(COSPackage* package)
{
    package->addClass(new ClassInfo);
}

void testPkgStuff()
{
    utPrintf("success!");
}

void dumpReg()
{
    basic::dumpRegistry(nullptr);
}

} // namespace

char const* RootPackage::getName() const
{
    return "orbis_factory";
}

char const* RootPackage::getDescription() const
{
    return "Sample classes, one for each facility of the library";
}

void RootPackage::initializePackage(COSPackage* package)
{
    load<samples::CosAdder>(package);

    publish(package, describeFunctions().function("testPkgStuff", &testPkgStuff).function("dumpReg", &dumpReg));
}

std::unique_ptr<COSPackageInfo> makeRootPackage()
{
    return std::make_unique<RootPackage>();
}

} // namespace orbis::factory
