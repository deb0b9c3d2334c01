#include "bindings/MemberRecords.hpp"

#include "bindings/ProxyBinding.hpp"
#include "lua/Table.hpp"

#include <algorithm>
#include <initializer_list>

namespace velmara::console {

namespace {

using orbis::MemberAccess;

bool isPublic(MemberAccess access, orbis::ExtendedMemberAccess extended)
{
    return access == MemberAccess::Public && extended == orbis::ExtendedMemberAccess::None;
}

/// Whether another one of the overloads takes the same parameters up to that one, and no more.
bool isOptional(MethodRecord const& method, std::size_t parameter, std::vector<MethodRecord> const& overloads)
{
    auto const isSame = [](ParameterRecord const& a, ParameterRecord const& b) {
        return a.name == b.name && a.dataType == b.dataType;
    };
    auto const parameters = parametersOf(method);
    return std::ranges::any_of(overloads, [&](MethodRecord const& other) {
        auto const others = parametersOf(other);
        return other.name == method.name && other.kind == method.kind && isListed(other) &&
               others.size() <= parameter && std::ranges::equal(others, parameters.first(others.size()), isSame);
    });
}

/// Appends tables to the sequence on top of the stack.
class MemberList {
public:
    explicit MemberList(lua_State* L) : L_(L)
    {
        luaL_checkstack(L, 10, nullptr);
        lua_newtable(L);
    }

    struct Attribute {
        char const* name;
        bool isSet;
    };

    void add(MethodRecord const& method, std::vector<MethodRecord> const& overloads)
    {
        begin(unqualifiedName(method.name), kindName(method.kind), method.description, method.definingClass);
        auto const parameters = parametersOf(method);
        pushSequence(L_, parameters.size(), [&](std::size_t i) {
            lua_createtable(L_, 0, 3);
            setField(L_, "name", parameters[i].name);
            setField(L_, "type", parameters[i].dataType);
            setField(L_, "optional", isOptional(method, i, overloads));
        });
        lua_setfield(L_, -2, "parameters");
        bool const hasResults = method.kind != MethodRecord::Kind::Constructor;
        pushSequence(L_, hasResults ? method.outputs.size() : 0,
                     [&](std::size_t i) { pushText(L_, method.outputs[i].dataType); });
        lua_setfield(L_, -2, "results");
        end({{"sealed", method.isSealed}, {"abstract", method.isAbstract}});
    }

    void add(PropertyRecord const& property)
    {
        begin(property.name, "property", property.description, property.definingClass);
        if (!property.dataType.empty())
            setField(L_, "type", property.dataType);
        end({{"static", property.isStatic},
             {"readonly", !isPublic(property.setAccess, property.extendedSetAccess)},
             {"writeonly", !isPublic(property.getAccess, property.extendedGetAccess)},
             {"abstract", property.isAbstract},
             {"sealed", property.isSealed},
             {"transient", property.isTransient},
             {"dependent", property.isDependent}});
    }

    void add(EnumeratorRecord const& enumerator, std::string const& className)
    {
        begin(enumerator.name, "enumerator", {}, className);
        setField(L_, "value", enumerator.value);
        end({});
    }

    void add(std::string const& fullName, char const* kind)
    {
        begin(unqualifiedName(fullName), kind, {}, {});
        end({});
    }

private:
    static char const* kindName(MethodRecord::Kind kind)
    {
        constexpr char const* names[] = {"constructor", "method", "static method", "function"};
        return names[static_cast<int>(kind)];
    }

    void begin(std::string const& name, char const* kind, std::string const& text, std::string const& className)
    {
        lua_createtable(L_, 0, 8);
        setField(L_, "name", name);
        setField(L_, "kind", kind);
        setField(L_, "text", text);
        if (!className.empty())
            setField(L_, "class", className);
    }

    void end(std::initializer_list<Attribute> attributes)
    {
        lua_newtable(L_);
        for (Attribute const& attribute : attributes)
            if (attribute.isSet)
                setField(L_, attribute.name, true);
        lua_setfield(L_, -2, "attributes");
        lua_rawseti(L_, -2, ++count_);
    }

    lua_State* L_;
    lua_Integer count_ = 0;
};

} // namespace

bool isListed(MethodRecord const& method)
{
    return method.isVisible && method.access == MemberAccess::Public;
}

bool isListed(PropertyRecord const& property)
{
    return property.isVisible &&
           (property.getAccess == MemberAccess::Public || property.setAccess == MemberAccess::Public);
}

bool isReadable(PropertyRecord const& property)
{
    return isPublic(property.getAccess, property.extendedGetAccess) && !property.isAbstract;
}

std::span<ParameterRecord const> parametersOf(MethodRecord const& method)
{
    bool const hasObject = method.kind == MethodRecord::Kind::Method && !method.inputs.empty();
    return std::span(method.inputs).subspan(hasObject ? 1 : 0);
}

std::vector<std::string> memberNames(ClassRecord const& cls)
{
    std::vector<std::string> names;
    for (MethodRecord const& method : cls.methods)
        if (isListed(method) && method.kind != MethodRecord::Kind::Constructor)
            names.push_back(method.name);
    for (PropertyRecord const& property : cls.properties)
        if (isListed(property))
            names.push_back(property.name);
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        names.push_back(enumerator.name);
    return names;
}

void pushMembers(lua_State* L, ClassRecord const& cls)
{
    MemberList members(L);
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        members.add(enumerator, cls.name);
    for (MethodRecord const& method : cls.methods)
        if (isListed(method))
            members.add(method, cls.methods);
    for (PropertyRecord const& property : cls.properties)
        if (isListed(property))
            members.add(property);
}

void pushMembers(lua_State* L, PackageRecord const& package)
{
    MemberList members(L);
    for (std::string const& name : package.packages)
        members.add(name, "package");
    for (std::string const& name : package.classes)
        members.add(name, "class");
    for (MethodRecord const& function : package.functions)
        if (isListed(function))
            members.add(function, package.functions);
}

} // namespace velmara::console
