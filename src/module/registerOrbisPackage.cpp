#include "orbis/factory/registerOrbisPackage.hpp"

#include "module/ORBISPackageFromInitializer.hpp"
#include "module/PublishedClasses.hpp"

#include "orbis/COSNameID.hpp"

#include <memory>
#include <utility>

namespace orbis::factory {

COSPackage* registerOrbisPackage(std::string const& fullName, std::function<void(COSPackage*)> initializer)
{
    if (fullName.empty())
        return nullptr;
    if (COSPackage* const existing = COSPackage::getPackage(COSNameID(fullName.c_str()))) {
        initializer(existing);
        return existing;
    }
    std::size_t const dot = fullName.rfind('.');
    bool const isNested = dot != std::string::npos;
    std::string const leaf = isNested ? fullName.substr(dot + 1) : fullName;
    std::string const parentName = isNested ? fullName.substr(0, dot) : std::string();

    PublishedClasses::ofCurrentHvm().expectPackage(fullName);
    auto info = std::make_unique<ORBISPackageFromInitializer>(leaf, std::move(initializer));
    COSPackage* const parent = registerOrbisPackage(parentName, [](COSPackage*) {});
    if (parent)
        parent->addSubPackage(info.release());
    else
        COSPackage::addPackage(info.release());
    return COSPackage::getPackage(COSNameID(fullName.c_str()));
}

} // namespace orbis::factory
