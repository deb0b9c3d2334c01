#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"

#include <algorithm>
#include <utility>

namespace velmara {

void Class::requireOpen(Name member) const
{
    if (state_ != State::Describing && !isLoading_)
        throwHostError("VELMARA:class", "closed", {name()->string(), member->string()});
}

void Class::throwDuplicate(Name member) const
{
    throwHostError("VELMARA:class", "duplicateMember", {name()->string(), member->string()});
}

void Class::requireNoEnumerator(Name member) const
{
    if (contents_->enumerators.find(member->view()))
        throwDuplicate(member);
}

void Class::addMethod(orbis::COSMethodInfo* method)
{
    auto added = std::make_unique<Method>(std::unique_ptr<orbis::COSMethodInfo>(method), this);
    requireOpen(added->name);
    requireNoEnumerator(added->name);
    auto const isSame = [&added](auto const& other) {
        return other->name == added->name && other->isConstructor == added->isConstructor &&
               other->hasSameInputs(*added);
    };
    if (std::ranges::any_of(contents_->methods, isSame) ||
        std::ranges::find(contents_->properties, added->name, [](auto const& p) { return p->name; }) !=
            contents_->properties.end())
        throwDuplicate(added->name);
    contents_->methods.push_back(std::move(added));
}

void Class::addProperty(orbis::COSPropInfo* property)
{
    auto added = std::make_unique<Property>(std::unique_ptr<orbis::COSPropInfo>(property), *this);
    requireOpen(added->name);
    requireNoEnumerator(added->name);
    auto const nameOf = [](auto const& member) { return member->name; };
    if (std::ranges::find(contents_->properties, added->name, nameOf) != contents_->properties.end() ||
        std::ranges::find(contents_->methods, added->name, nameOf) != contents_->methods.end())
        throwDuplicate(added->name);
    contents_->properties.push_back(std::move(added));
}

void Class::throwEnumeration() const
{
    throwHostError("VELMARA:enumeration", "noObjects", {name()->string(), contents_->enumerators.names()});
}

void Class::addEnumerator(std::string_view name, std::int64_t value)
{
    if (!isEnumeration_)
        throwHostError("VELMARA:enumeration", "notEnumeration", {this->name()->string()});
    if (state_ != State::Describing)
        throwHostError("VELMARA:class", "closed", {this->name()->string(), std::string(name)});
    auto const isCalledSo = [name](auto const& member) { return member->name->view() == name; };
    if (std::ranges::any_of(contents_->methods, isCalledSo) || std::ranges::any_of(contents_->properties, isCalledSo))
        throwDuplicate(intern(name));
    contents_->enumerators.add(this->name(), name, value);
}

void Class::buildTables(NewTables& tables)
{
    if (!isReady())
        return; // unpublished meanwhile
    tables.emplace_back(this, buildMemberTables(linearization()));
    for (Class* const subclass : subclasses_)
        subclass->buildTables(tables);
}

void Class::rebuildTables()
{
    NewTables rebuilt;
    buildTables(rebuilt);
    machine().packages().countPublication();
    // Running calls may still use the old tables.
    for (auto& [cls, tables] : rebuilt)
        machine().retire(std::exchange(cls->contents_->tables, std::move(tables)));
}

template <class Find, class Attempt>
auto Class::load(Find find, Attempt attempt)
{
    auto found = find();
    for (std::size_t i = 0; !found && i < linearization().size(); ++i) {
        Class& cls = *Class::of(linearization()[i]);
        if (cls.isLoading_)
            continue;
        cls.isLoading_ = true;
        bool const wasStale = cls.isStale_;
        try {
            if (wasStale || attempt(cls.info())) {
                cls.isStale_ = true;
                cls.rebuildTables();
                cls.isStale_ = false;
            }
        } catch (...) {
            cls.isLoading_ = false;
            throw;
        }
        cls.isLoading_ = false;
        found = find();
        if (wasStale)
            --i; // its class info has not tried yet
    }
    return found;
}

MethodGroup const* Class::findOtherMethods(std::string_view name)
{
    MethodGroup const* const found = tables().methodGroups.findText(name);
    if (!found)
        return loadMethods(name);
    tables().recentMethods.remember(name, *found);
    return found;
}

MethodGroup const* Class::loadMethods(std::string_view name)
{
    return load([&] { return tables().methodGroups.findText(name); },
                [&](orbis::COSClassInfo& info) { return info.attemptToLoadMethod(std::string(name).c_str()); });
}

Property const* Class::findOtherProperty(std::string_view name)
{
    Property const* const* const found = tables().propertiesByName.findText(name);
    if (!found)
        return loadProperty(name);
    tables().recentProperties.remember(name, **found);
    return *found;
}

Property const* Class::loadProperty(std::string_view name)
{
    auto const find = [&]() -> Property const* {
        Property const* const* const found = tables().propertiesByName.findText(name);
        return found ? *found : nullptr;
    };
    return load(find, [&](orbis::COSClassInfo& info) { return info.attemptToLoadProperty(std::string(name).c_str()); });
}

} // namespace velmara
