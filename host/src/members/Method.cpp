#include "members/Method.hpp"

#include "errors/hostError.hpp"
#include "objects/ObjectClass.hpp"

#include <algorithm>

namespace velmara {

namespace {

Name nameOf(orbis::COSMethodInfo const& info)
{
    char const* const name = info.getName();
    if (!name || !*name)
        throwHostError("VELMARA:member", "name");
    return intern(name);
}

} // namespace

Method::Method(std::unique_ptr<orbis::COSMethodInfo> descriptor, ObjectClass const* definer)
    : info(std::move(descriptor)),
      name(nameOf(*info)),
      definingClass(definer),
      access(info->getMemberAccess()),
      isStatic(info->isStatic()),
      isAbstract(info->isAbstract()),
      isSealed(info->isSealed()),
      isVisible(info->isVisible()),
      overridesAllSignatures(info->doesMethodOverrideAllSignatures())
{
    if (auto const* const signature = static_cast<Signature const*>(info->getMethodSignature())) {
        inputs = signature->inputs();
        outputs = signature->outputs();
    }
    inputCount = inputs.size();
    outputType = outputs.empty() ? nullptr : &outputs.front().type;
    isConstructor =
        definer && name == definer->ownName() && outputs.size() == 1 && outputs.front().type.name == definer->name();
    takesObject = definer && !isStatic && !isConstructor;
    if (takesObject && inputs.empty())
        throwHostError("VELMARA:member", "noObjectInput", {definer->name()->string(), info->getName()});
    takesFewInputs = isAccessible() && !isAbstract && inputCount <= fewInputs;
}

bool Method::hasSameInputs(Method const& other) const
{
    return std::ranges::equal(
        explicitInputs(), other.explicitInputs(), {}, [](Parameter const& p) { return p.type.name; },
        [](Parameter const& p) { return p.type.name; });
}

std::string Method::describe() const
{
    return name->string().append("(").append(velmara::describe(explicitInputs())).append(")");
}

void MethodGroup::add(Method const& method)
{
    methods.insert(method.isAccessible() ? accessibleEnd() : methods.end(), &method);
    if (method.isAccessible())
        ++accessible;
    findOnly();
}

void MethodGroup::remove(Method const& method)
{
    if (std::erase(methods, &method) != 0 && method.isAccessible())
        --accessible;
    findOnly();
}

} // namespace velmara
