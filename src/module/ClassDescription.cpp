#include "orbis/factory/ClassDescription.hpp"

#include <utility>

namespace orbis::factory {

ClassDescription::ClassDescription(NativeClassRecord const& native) : native_(native) {}

ClassDescription::ClassDescription(ClassDescription const&) = default;

ClassDescription::~ClassDescription() = default;

char const* ClassDescription::hostName() const
{
    return native_.hostName;
}

NativeClassRecord const& ClassDescription::native() const
{
    return native_;
}

std::vector<NativeClassRecord> const& ClassDescription::superclasses() const
{
    return superclasses_;
}

std::vector<MemberRecord> const& ClassDescription::members() const
{
    return members_;
}

std::vector<PropertyRecord> const& ClassDescription::properties() const
{
    return properties_;
}

detail::Copying const* ClassDescription::copying() const
{
    return copying_;
}

void ClassDescription::setCopying(detail::Copying const& copying)
{
    copying_ = &copying;
}

void ClassDescription::add(NativeClassRecord const& superclass)
{
    superclasses_.push_back(superclass);
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
