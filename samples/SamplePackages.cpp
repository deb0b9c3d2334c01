#include "samples/SamplePackages.hpp"

#include "samples/C1.hpp"
#include "samples/C2.hpp"
#include "samples/C3.hpp"

#include "orbis/COSPackage.hpp"

namespace orbis::factory::samples {

void P1PackageWrapper::initializePackage(COSPackage* package)
{
    package->addClass(new C1Wrapper);
    COSPackage::addPackage(new P2PackageWrapper);
}

void P2PackageWrapper::initializePackage(COSPackage* package)
{
    package->addClass(new C2Wrapper);
}

void P3PackageWrapper::initializePackage(COSPackage* package)
{
    package->addClass(new C3Wrapper);
}

} // namespace orbis::factory::samples
