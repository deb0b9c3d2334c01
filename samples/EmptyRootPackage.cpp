// The built-in package of a library that is built without the samples.
#include "samples/RootPackage.hpp"

namespace orbis::factory {

char const* RootPackage::getName() const
{
    return "orbis_factory";
}

char const* RootPackage::getDescription() const
{
    return "Empty: the library was built without the sample classes";
}

void RootPackage::initializePackage(COSPackage*) {}

} // namespace orbis::factory
