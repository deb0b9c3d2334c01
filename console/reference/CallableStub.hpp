#pragma once

#include "reference/StubTypes.hpp"

#include "velmara/Listing.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace velmara::console {

/// The forms of one name, at least one.
using CallableForms = std::vector<MethodRecord const*>;

/// Writes the methods of a class, or the functions of a package, as functions of Lua with annotations for editors.
class CallableStub {
public:
    CallableStub(StubTypes const& types, std::string const& owner) : types_(types), owner_(owner) {}

    /// What the forms say of themselves, each text once, as comments.
    std::string descriptions(CallableForms const& forms) const;

    /// The forms from `first` on as annotations; and all of them with named inputs, where these are told apart.
    std::string overloads(CallableForms const& forms, std::size_t first) const;

    /// A function without a body: the first form for an object where there is one, with the others as overloads.
    std::string definition(CallableForms forms) const;

private:
    std::string result(MethodRecord const& form) const;
    std::string parameterLines(MethodRecord const& form) const;
    std::string overload(MethodRecord const& form) const;
    std::string namedOverload(MethodRecord const& form) const;

    /// "name: type", with "?" where the parameter is optional.
    std::string parameter(std::string const& name, ParameterRecord const& record) const;

    StubTypes const& types_;
    std::string const& owner_;
};

} // namespace velmara::console
