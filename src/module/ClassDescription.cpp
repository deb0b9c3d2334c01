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

void ClassDescription::add(detail::CallableForm const& form, char const* name, impl::Callable target,
                           char const* parameterNames, MethodText text)
{
    add(detail::makeRecord(form, name, target, parameterNames, text));
}

void ClassDescription::keep(detail::KeptObject const& getter, detail::KeptObject const& setter)
{
    properties_.back().keptGetter = getter;
    properties_.back().keptSetter = setter;
}

void ClassDescription::add(std::vector<MemberRecord> records)
{
    members_.reserve(members_.size() + records.size());
    for (MemberRecord& record : records)
        members_.push_back(std::move(record));
}

void ClassDescription::add(char const* name, detail::GetterForm const* getterForm, impl::Callable getter,
                           detail::SetterForm const* setterForm, impl::Callable setter, PropertyText text)
{
    properties_.push_back({name, text.attributes(), getterForm, setterForm, getter, setter, text.text()});
}

} // namespace orbis::factory
