#include "orbis/factory/ClassDescription.hpp"

#include <utility>

namespace orbis::factory {

ClassDescription::ClassDescription(char const* hostName) : hostName_(hostName) {}

ClassDescription::ClassDescription(ClassDescription const&) = default;

ClassDescription::~ClassDescription() = default;

char const* ClassDescription::hostName() const
{
    return hostName_;
}

std::vector<MemberRecord> const& ClassDescription::members() const
{
    return members_;
}

std::vector<PropertyRecord> const& ClassDescription::properties() const
{
    return properties_;
}

void ClassDescription::add(MemberRecord record)
{
    members_.push_back(std::move(record));
}

void ClassDescription::add(PropertyRecord record)
{
    properties_.push_back(std::move(record));
}

} // namespace orbis::factory
