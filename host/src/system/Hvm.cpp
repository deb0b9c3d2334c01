#include "velmara/Hvm.hpp"

#include "system/HvmCall.hpp"
#include "system/HvmState.hpp"
#include "system/ModuleList.hpp"
#include "system/calls.hpp"
#include "system/listings.hpp"
#include "system/propertyAccess.hpp"

namespace velmara {

Hvm::Hvm() : state_(std::make_unique<HvmState>()) {}

Hvm::~Hvm() = default;

Hvm::Scope::Scope(Hvm& hvm) : previous_(HvmState::makeCurrent(hvm.state_.get())) {}

Hvm::Scope::~Scope()
{
    HvmState::makeCurrent(previous_);
}

ModuleRecord Hvm::loadModule(std::filesystem::path const& file)
{
    return callInto(*state_, [&] { return state_->modules().load(file).record(); });
}

void Hvm::unloadModule(std::string_view name)
{
    callInto(*state_, [&] { state_->modules().unload(name); });
}

std::vector<ModuleRecord> Hvm::modules() const
{
    return state_->modules().records();
}

ArrayPtr Hvm::construct(std::string_view className, Inputs inputs)
{
    return callInto(*state_, [&] { return velmara::construct(*state_, className, inputs); });
}

ArrayPtr Hvm::call(hvArray_tag* object, std::string_view method, Inputs inputs)
{
    return callInto(*state_, [&] { return callMethod(*state_, object, method, inputs); });
}

ArrayPtr Hvm::callStatic(std::string_view className, std::string_view method, Inputs inputs)
{
    return callInto(*state_, [&] { return callStaticMethod(*state_, className, method, inputs); });
}

ArrayPtr Hvm::callFunction(std::string_view fullName, Inputs inputs)
{
    return callInto(*state_, [&] { return velmara::callFunction(*state_, fullName, inputs); });
}

ArrayPtr Hvm::get(hvArray_tag* object, std::string_view property)
{
    return callInto(*state_, [&] { return getProperty(*state_, object, property); });
}

void Hvm::set(hvArray_tag* object, std::string_view property, hvArray_tag* value)
{
    callInto(*state_, [&] { setProperty(*state_, object, property, value); });
}

ArrayPtr Hvm::getStatic(std::string_view className, std::string_view property)
{
    return callInto(*state_, [&] { return getStaticProperty(*state_, className, property); });
}

void Hvm::setStatic(std::string_view className, std::string_view property, hvArray_tag* value)
{
    callInto(*state_, [&] { setStaticProperty(*state_, className, property, value); });
}

void Hvm::deleteObjects(hvArray_tag* objects)
{
    callInto(*state_, [&] { velmara::deleteObjects(*state_, objects); });
}

NameKind Hvm::lookUp(std::string_view fullName)
{
    return callInto(*state_, [&] { return velmara::lookUp(*state_, fullName); });
}

PackageRecord Hvm::describePackage(std::string_view fullName)
{
    return callInto(*state_, [&] { return velmara::describePackage(*state_, fullName); });
}

ClassRecord Hvm::describeClass(std::string_view fullName)
{
    return callInto(*state_, [&] { return velmara::describeClass(*state_, fullName); });
}

MethodRecord Hvm::describeFunction(std::string_view fullName)
{
    return callInto(*state_, [&] { return velmara::describeFunction(*state_, fullName); });
}

} // namespace velmara
