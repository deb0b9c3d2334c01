#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/callTargets.hpp"
#include "classes/PackageTree.hpp"
#include "errors/hostError.hpp"

namespace velmara {

namespace {

/// The class info of an enumeration that no module publishes.
class DefinedEnumeration final : public orbis::COSClassInfo {
public:
    DefinedEnumeration(std::string_view name, std::span<EnumeratorRecord const> enumerators)
        : name_(name),
          enumerators_(enumerators.begin(), enumerators.end())
    {
    }

    char const* getName() const override { return name_.c_str(); }
    void* createInstanceData() override { return nullptr; }
    bool destroyInstanceData(orbis::COSInterface*, void*) override { return false; }
    bool isHandle() const override { return true; }
    bool isEnumeration() const override { return true; }

    void initializeClass(orbis::COSClass* cls) override
    {
        for (EnumeratorRecord const& enumerator : enumerators_)
            static_cast<Class*>(cls)->addEnumerator(enumerator.name, enumerator.value);
    }

private:
    std::string name_;
    std::vector<EnumeratorRecord> enumerators_;
};

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
        packages.transact([&] {
            packages.addClass(std::make_unique<DefinedEnumeration>(fullName, enumerators));
            requireClass(*state_, fullName);
        });
    });
}

} // namespace velmara
