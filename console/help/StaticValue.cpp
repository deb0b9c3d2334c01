#include "help/StaticValue.hpp"

#include "bindings/ClassMembers.hpp"
#include "bindings/MemberRecords.hpp"
#include "bindings/ProxyBinding.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"

#include <algorithm>
#include <charconv>

namespace velmara::console {

namespace {

using Kind = MethodRecord::Kind;

/// The listed records of the name and, with `wantsConstructors`, those of constructors only; else no constructors.
std::vector<MethodRecord> selectNamed(std::vector<MethodRecord> const& records, std::string_view name,
                                      bool wantsConstructors = false)
{
    std::vector<MethodRecord> selected;
    std::ranges::copy_if(records, std::back_inserter(selected), [&](MethodRecord const& record) {
        return isListed(record) && (record.kind == Kind::Constructor) == wantsConstructors &&
               (wantsConstructors || unqualifiedName(record.name) == name);
    });
    return selected;
}

/// The data type of the results, when all overloads have the same.
std::string commonResult(std::vector<MethodRecord> const& overloads)
{
    std::string type;
    for (MethodRecord const& overload : overloads) {
        if (overload.outputs.empty() || (!type.empty() && overload.outputs.front().dataType != type))
            return {};
        type = overload.outputs.front().dataType;
    }
    return type;
}

} // namespace

StaticValue::StaticValue(lua_State* L, std::span<ExpressionStep const> steps) : L_(L)
{
    luaL_checkstack(L, 8, nullptr);
    lua_pushnil(L);
    index_ = lua_gettop(L);
    for (ExpressionStep const& step : steps)
        take(step);
}

std::string StaticValue::objectClass() const
{
    if (isObject(L_, index_))
        return std::string(console::objectClass(L_, index_));
    return isClass(type_) ? type_ : std::string();
}

std::string StaticValue::name() const
{
    std::string_view const proxied = proxyName(L_, index_);
    return std::string(proxied.empty() ? calledName(L_, index_) : proxied);
}

std::vector<MethodRecord> StaticValue::overloads() const
{
    Hvm& hvm = HostContext::of(L_).hvm();
    std::string const full = name();
    std::size_t const dot = full.rfind('.');
    std::string const owner = dot == full.npos ? std::string() : full.substr(0, dot);
    std::string const member = unqualifiedName(full);
    if (full.empty())
        return {};
    switch (hvm.lookUp(full)) {
    case NameKind::Class:
        return selectNamed(hvm.describeClass(full).methods, {}, true);
    case NameKind::Function:
        return selectNamed(hvm.describePackage(owner).functions, member);
    default:
        return isClass(owner) ? selectNamed(hvm.describeClass(owner).methods, member) : std::vector<MethodRecord>();
    }
}

void StaticValue::take(ExpressionStep const& step)
{
    using Step = ExpressionStep::Kind;
    switch (step.kind) {
    case Step::Name:
        lua_pushglobaltable(L_);
        pushText(L_, step.text);
        if (lua_rawget(L_, -2) == LUA_TNIL)
            pushProxy(L_, step.text);
        setValue();
        break;
    case Step::Member:
    case Step::Method:
        takeMember(std::string(step.text));
        break;
    case Step::Index:
        takeElement(step.text);
        break;
    case Step::Call:
        takeResult();
        break;
    }
}

void StaticValue::takeMember(std::string const& member)
{
    std::string const proxied(proxyName(L_, index_));
    std::string owner = objectClass();
    if (owner.empty() && isClass(proxied))
        owner = proxied;
    if (!owner.empty()) {
        ClassRecord const cls = HostContext::of(L_).hvm().describeClass(owner);
        auto const property = std::ranges::find(cls.properties, member, &PropertyRecord::name);
        if (property != cls.properties.end())
            return setUnknown(property->dataType);
        pushProxy(L_, owner.append(1, '.').append(member));
    } else if (!proxied.empty())
        pushProxy(L_, proxied + '.' + member);
    else if (lua_istable(L_, index_)) {
        pushText(L_, member);
        lua_rawget(L_, index_);
    } else
        return setUnknown();
    setValue();
}

void StaticValue::takeResult()
{
    std::string const called = name();
    setUnknown(isClass(called) ? called : commonResult(overloads()));
}

void StaticValue::takeElement(std::string_view key)
{
    lua_Integer number = 0;
    auto const [end, error] = std::from_chars(key.data(), key.data() + key.size(), number);
    bool const isNumber = error == std::errc() && end == key.data() + key.size();
    if (!lua_istable(L_, index_) || !proxyName(L_, index_).empty())
        return setUnknown(type_.substr(0, std::min(type_.find(' '), type_.size())));
    if (isNumber)
        lua_rawgeti(L_, index_, number);
    else
        lua_pushnil(L_);
    setValue();
}

void StaticValue::setValue()
{
    lua_replace(L_, index_);
    lua_settop(L_, index_);
    type_.clear();
}

void StaticValue::setUnknown(std::string type)
{
    lua_pushnil(L_);
    setValue();
    type_ = std::move(type);
}

bool StaticValue::isClass(std::string const& name) const
{
    return !name.empty() && HostContext::of(L_).hvm().lookUp(name) == NameKind::Class;
}

} // namespace velmara::console
