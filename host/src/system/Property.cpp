#include "system/Property.hpp"

#include "system/Class.hpp"
#include "values/hostError.hpp"

#include "orbis/COSDataType.hpp"

namespace velmara {

namespace {

Name nameOf(orbis::COSPropInfo const& info)
{
    char const* const name = info.getName();
    if (!name || !*name)
        throwHostError("VELMARA:member", "name");
    return intern(name);
}

} // namespace

Property::Property(std::unique_ptr<orbis::COSPropInfo> descriptor, Class const& definer)
    : info(std::move(descriptor)),
      name(nameOf(*info)),
      definingClass(definer),
      getAccess(info->getMemberGetAccess()),
      setAccess(info->getMemberSetAccess()),
      isStatic(info->isStatic()),
      isAbstract(info->isAbstract()),
      isSealed(info->isSealed()),
      isVisible(info->isVisible())
{
}

TypeReference const& Property::type() const
{
    if (!type_) {
        orbis::COSDataTypePtr const dataType = info->getDataType();
        if (!dataType)
            throwHostError("VELMARA:property", "dataType",
                           {std::string(definingClass.name()->view()), std::string(name->view())});
        type_.emplace(intern(dataType->scalarTypeName()));
    }
    return *type_;
}

} // namespace velmara
