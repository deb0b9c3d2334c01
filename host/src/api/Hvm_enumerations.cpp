#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/callTargets.hpp"
#include "classes/DefinedEnumeration.hpp"
#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"

namespace velmara {

namespace {

ArrayPtr getEnumeratorOf(Machine& machine, std::string_view className, std::string_view name)
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
