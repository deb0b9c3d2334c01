#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/calls.hpp"
#include "classes/Class.hpp"
#include "classes/DefinedEnumeration.hpp"
#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"

#include "additions/additions.hpp"

#include <algorithm>

namespace velmara {

namespace {

std::string text(Name name)
{
    return std::string(name->view());
}

} // namespace

void Class::requireNoEnumeration() const
{
    if (isEnumeration_)
        throwHostError("VELMARA:enumeration", "noObjects", {text(name_), contents_->enumerators.names()});
}

void Class::addEnumerator(std::string_view name, std::int64_t value)
{
    if (!isEnumeration_)
        throwHostError("VELMARA:enumeration", "notEnumeration", {text(name_)});
    if (state_ != State::Describing)
        throwHostError("VELMARA:class", "closed", {text(name_), std::string(name)});
    auto const isCalledSo = [name](auto const& member) { return member->name->view() == name; };
    if (std::ranges::any_of(contents_->methods, isCalledSo) || std::ranges::any_of(contents_->properties, isCalledSo))
        refuseDuplicate(intern(name));
    contents_->enumerators.add(name_, name, value);
}

namespace {

ArrayPtr getEnumeratorOf(HvmState& machine, std::string_view className, std::string_view name)
{
    Class const& cls = requireClass(machine, className);
    if (!cls.isEnumeration())
        throwHostError("VELMARA:enumeration", "notEnumeration", {std::string(className)});
    EnumeratorTable const& enumerators = cls.contents().enumerators;
    Enumerator const* const found = cls.isReady() ? enumerators.find(name) : nullptr;
    if (!found)
        throwHostError("VELMARA:enumeration", "unknown",
                       {std::string(className), std::string(name), enumerators.names()});
    return ArrayPtr(Array::of(found->object.get())->shareData());
}

} // namespace

ArrayPtr Hvm::getEnumerator(std::string_view className, std::string_view name)
{
    return callInto(*state_, [&] { return getEnumeratorOf(*state_, className, name); });
}

void Hvm::defineEnumeration(std::string_view fullName, std::span<EnumeratorRecord const> enumerators)
{
    callInto(*state_, [&] {
        PackageTree& packages = state_->packages();
        packages.findClass(fullName); // has the packages on the way populated
        packages.changing([&] {
            packages.addClass(std::make_unique<DefinedEnumeration>(fullName, enumerators));
            requireClass(*state_, fullName);
        });
    });
}

} // namespace velmara

namespace orbis::additions {

using namespace velmara;

void addEnumerator(COSClass* cls, char const* name, std::int64_t value)
{
    if (!cls)
        throwHostError("VELMARA:class", "null");
    static_cast<Class*>(cls)->addEnumerator(name ? name : "", value);
}

COSInterfacePtr getEnumerator(COSNameID const& className, char const* name)
{
    auto const* const cls = static_cast<Class const*>(COSClass::getClass(className));
    if (!cls || !cls->isReady() || !name)
        return nullptr;
    velmara::Enumerator const* const found = cls->contents().enumerators.find(name);
    return found ? found->host() : nullptr;
}

Enumerator const* describeEnumerator(COSInterface const* object)
{
    auto const* const enumerator = static_cast<Object const*>(object);
    if (!enumerator || !enumerator->isEnumerator() || !enumerator->classOf())
        return nullptr;
    return &enumerator->classOf()->contents().enumerators.at(enumerator->enumerator());
}

} // namespace orbis::additions
