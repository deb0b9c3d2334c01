#pragma once

#include "members/Signature.hpp"
#include "memory/Retirable.hpp"

#include "orbis/COSMethodInfo.hpp"

#include <memory>
#include <span>
#include <vector>

namespace velmara {

class ObjectClass;

/// A published callable member: its descriptor, and what that said of itself when it was published.
struct Method : Retirable {
    /// `definer` is null for a package function. Throws "VELMARA:member:name" for a descriptor without a name.
    Method(std::unique_ptr<orbis::COSMethodInfo> descriptor, ObjectClass const* definer);

    /// The inputs that a caller writes: all but the object.
    std::span<Parameter const> explicitInputs() const { return std::span(inputs).subspan(takesObject); }

    /// True when both are called with explicit inputs of the same types.
    bool hasSameInputs(Method const& other) const;

    /// "getSum(a: int32 scalar, b: int32 scalar)", without the object.
    std::string describe() const;

    bool isAccessible() const { return access == orbis::MemberAccess::Public; }

    std::unique_ptr<orbis::COSMethodInfo> info;
    Name name;
    ObjectClass const* definingClass;
    std::vector<Parameter> inputs;
    std::size_t inputCount; ///< `inputs.size()`, which would be a division
    std::vector<Parameter> outputs;
    TypeReference const* outputType; ///< null when there is none
    orbis::MemberAccess access;
    bool isConstructor; ///< named as the class itself, with an object of the class as its output
    bool isStatic;
    bool isAbstract;
    bool isSealed;
    bool isVisible;
    bool overridesAllSignatures;
    bool takesObject; ///< its first input is the object it is called on

    /// True for what anyone may call, and that takes no more than `fewInputs`, the object included.
    bool takesFewInputs;
    static constexpr std::size_t fewInputs = 8;
};

/// The methods of one name among which the dispatch chooses.
struct MethodGroup {
    /// Those that a script may call come first. A failure changes nothing.
    void add(Method const& method);
    void remove(Method const& method);

    auto accessibleEnd() const { return methods.begin() + static_cast<std::ptrdiff_t>(accessible); }

    std::vector<Method const*> methods;
    std::size_t accessible = 0;

    /// The one that may be called; null when there are several, or none.
    Method const* only = nullptr;

private:
    void findOnly() { only = accessible == 1 ? methods.front() : nullptr; }
};

} // namespace velmara
