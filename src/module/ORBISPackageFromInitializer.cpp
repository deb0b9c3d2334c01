#include "module/ORBISPackageFromInitializer.hpp"

#include <utility>

namespace orbis::factory {

ORBISPackageFromInitializer::ORBISPackageFromInitializer(std::string name, std::function<void(COSPackage*)> initializer)
    : name_(std::move(name)),
      initializer_(std::move(initializer))
{
}

char const* ORBISPackageFromInitializer::getName() const
{
    return name_.c_str();
}

void ORBISPackageFromInitializer::initializePackage(COSPackage* package)
{
    if (initializer_)
        initializer_(package);
}

} // namespace orbis::factory
