#pragma once

#include "help/Expression.hpp"
#include "lua/LuaApi.hpp"

#include "velmara/Listing.hpp"

#include <span>
#include <string>
#include <vector>

namespace velmara::console {

/// What an expression is known to give, without running any of it: the value that a variable or field has, or what is
/// published of a result or property. It keeps one value on the stack, which is above all that the caller pushes
/// before.
class StaticValue {
public:
    StaticValue(lua_State* L, std::span<ExpressionStep const> steps);

    /// The class of the object that it gives; empty when it gives none, or that is not known.
    std::string objectClass() const;

    /// The full name of the package, class, method or function that it is; empty for other values.
    std::string name() const;

    /// The index of its value; nil when only its class is known, or nothing.
    int index() const { return index_; }

    /// The published forms of a call of it, which a script may use.
    std::vector<MethodRecord> overloads() const;

private:
    void take(ExpressionStep const& step);
    void takeMember(std::string const& member);
    void takeResult();
    void takeElement(std::string_view key);

    /// Replaces the value on the stack by that on top.
    void setValue();
    void setUnknown(std::string type = {});
    bool isClass(std::string const& name) const;

    lua_State* L_;
    int index_;
    std::string type_; ///< the published data type, such as "calc.Adder" or "calc.Adder vector"
};

} // namespace velmara::console
