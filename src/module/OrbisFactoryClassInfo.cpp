#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"

#include "module/PublishedClasses.hpp"

#include "libkwfoundation_usm/Detail.hpp"

namespace orbis::factory {

OrbisFactoryClassInfo::OrbisFactoryClassInfo(std::string const& name, std::string const& description)
    : name_(name),
      description_(description)
{
    if (foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive())
        PublishedClasses::ofCurrentHvm().expect(name_);
}

OrbisFactoryClassInfo::~OrbisFactoryClassInfo() = default;

char const* OrbisFactoryClassInfo::getName() const
{
    return name_.c_str();
}

char const* OrbisFactoryClassInfo::getDescription() const
{
    return description_.c_str();
}

char const* OrbisFactoryClassInfo::getDetailedDescription() const
{
    return getDescription();
}

bool OrbisFactoryClassInfo::slot10Flag() const
{
    return true;
}

char const* OrbisFactoryClassInfo::nativeOwner() const
{
    return "native";
}

} // namespace orbis::factory
