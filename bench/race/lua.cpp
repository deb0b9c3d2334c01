// The native code as a Lua module, bound by hand with Lua's C interface. It checks what the others check: the number of
// arguments, their types, that the object is alive; one native object is one userdata; exceptions become errors.
#include "native.hpp"

#include <lua.hpp>

#include <exception>
#include <utility>

namespace {

using race::Adder;

constexpr char const* adderType = "race.Adder";
char const knownObjects = 0; // its address is the key of the table of userdata by native object

/// Runs a function that may throw. No object with a destructor is alive where it raises an error itself.
template <int (*function)(lua_State*)>
int guarded(lua_State* lua)
{
    try {
        return function(lua);
    } catch (std::exception const& error) {
        lua_pushstring(lua, error.what());
    }
    return lua_error(lua);
}

void checkCount(lua_State* lua, int expected)
{
    if (lua_gettop(lua) != expected)
        luaL_error(lua, "%d arguments expected, got %d", expected, lua_gettop(lua));
}

double checkNumber(lua_State* lua, int index)
{
    luaL_checktype(lua, index, LUA_TNUMBER);
    return lua_tonumber(lua, index);
}

Adder* checkAdder(lua_State* lua, int index)
{
    Adder* const adder = *static_cast<Adder**>(luaL_checkudata(lua, index, adderType));
    if (!adder)
        luaL_error(lua, "the object was deleted");
    return adder;
}

int createAdder(lua_State* lua)
{
    checkCount(lua, 0);
    auto** const place = static_cast<Adder**>(lua_newuserdatauv(lua, sizeof(Adder*), 0));
    *place = nullptr;
    luaL_setmetatable(lua, adderType);
    *place = new Adder;
    lua_rawgetp(lua, LUA_REGISTRYINDEX, &knownObjects);
    lua_pushvalue(lua, -2);
    lua_rawsetp(lua, -2, *place);
    lua_pop(lua, 1);
    return 1;
}

int collectAdder(lua_State* lua)
{
    auto** const place = static_cast<Adder**>(luaL_checkudata(lua, 1, adderType));
    delete std::exchange(*place, nullptr);
    return 0;
}

int getSum(lua_State* lua)
{
    checkCount(lua, 3);
    Adder* const adder = checkAdder(lua, 1);
    double const a = checkNumber(lua, 2);
    double const b = checkNumber(lua, 3);
    lua_pushnumber(lua, adder->getSum(a, b));
    return 1;
}

int getTotal(lua_State* lua)
{
    lua_pushnumber(lua, checkAdder(lua, 1)->total);
    return 1;
}

int setTotal(lua_State* lua)
{
    checkAdder(lua, 1)->total = checkNumber(lua, 3);
    return 0;
}

/// A method, or the value of a property: the upvalues are the tables of methods and of getters.
int index(lua_State* lua)
{
    lua_pushvalue(lua, 2);
    if (lua_rawget(lua, lua_upvalueindex(1)) != LUA_TNIL)
        return 1;
    lua_pushvalue(lua, 2);
    lua_rawget(lua, lua_upvalueindex(2));
    if (lua_CFunction const getter = lua_tocfunction(lua, -1))
        return getter(lua);
    return luaL_error(lua, "no member '%s'", luaL_tolstring(lua, 2, nullptr));
}

int assign(lua_State* lua)
{
    lua_pushvalue(lua, 2);
    lua_rawget(lua, lua_upvalueindex(1));
    if (lua_CFunction const setter = lua_tocfunction(lua, -1))
        return setter(lua);
    return luaL_error(lua, "no property '%s'", luaL_tolstring(lua, 2, nullptr));
}

int add(lua_State* lua)
{
    checkCount(lua, 2);
    double const a = checkNumber(lua, 1);
    lua_pushnumber(lua, race::add(a, checkNumber(lua, 2)));
    return 1;
}

int length(lua_State* lua)
{
    checkCount(lua, 1);
    luaL_checktype(lua, 1, LUA_TSTRING);
    std::size_t size = 0;
    char const* const text = lua_tolstring(lua, 1, &size);
    lua_pushinteger(lua, race::length(std::string(text, size)));
    return 1;
}

int name(lua_State* lua)
{
    checkCount(lua, 0);
    std::string const text = race::name();
    lua_pushlstring(lua, text.data(), text.size());
    return 1;
}

int self(lua_State* lua)
{
    checkCount(lua, 1);
    Adder* const adder = race::self(checkAdder(lua, 1));
    lua_rawgetp(lua, LUA_REGISTRYINDEX, &knownObjects);
    lua_rawgetp(lua, -1, adder);
    return 1;
}

int describe(lua_State* lua)
{
    checkCount(lua, 1);
    int result = 0;
    switch (lua_type(lua, 1)) {
    case LUA_TNUMBER:
        result = race::describe(lua_tonumber(lua, 1));
        break;
    case LUA_TSTRING:
        result = race::describe(std::string(lua_tostring(lua, 1), lua_rawlen(lua, 1)));
        break;
    default:
        result = race::describe(checkAdder(lua, 1));
    }
    lua_pushinteger(lua, result);
    return 1;
}

template <int number>
constexpr char const kindType[] = {'r', 'a', 'c', 'e', '.', 'K', 'i', 'n', 'd', '0' + number, '\0'};

template <int number>
int createKind(lua_State* lua)
{
    checkCount(lua, 0);
    auto** const place = static_cast<race::Kind<number>**>(lua_newuserdatauv(lua, sizeof(void*), 0));
    *place = nullptr;
    luaL_setmetatable(lua, kindType<number>);
    *place = new race::Kind<number>;
    return 1;
}

template <int number>
int collectKind(lua_State* lua)
{
    auto** const place = static_cast<race::Kind<number>**>(luaL_checkudata(lua, 1, kindType<number>));
    delete std::exchange(*place, nullptr);
    return 0;
}

template <int number>
bool chooseOne(lua_State* lua)
{
    auto** const place = static_cast<race::Kind<number>**>(luaL_testudata(lua, 1, kindType<number>));
    if (!place || !*place)
        return false;
    lua_pushinteger(lua, race::choose<number>(*place));
    return true;
}

template <int... numbers>
int choose(lua_State* lua)
{
    checkCount(lua, 1);
    return (chooseOne<numbers>(lua) || ...) ? 1 : luaL_error(lua, "no overload takes %s", luaL_typename(lua, 1));
}

/// Calls `function` with the table at index 1 as a vector, of elements that `read(index)` takes from the top of the
/// stack.
template <int type, class Element, class Read>
int withList(lua_State* lua, int (*function)(std::vector<Element> const&), Read read)
{
    checkCount(lua, 1);
    luaL_checktype(lua, 1, LUA_TTABLE);
    lua_Integer wrong = 0;
    int result = 0;
    {
        std::vector<Element> elements;
        auto const size = static_cast<lua_Integer>(lua_rawlen(lua, 1));
        elements.reserve(static_cast<std::size_t>(size));
        for (lua_Integer i = 1; i <= size && wrong == 0; ++i) {
            if (lua_rawgeti(lua, 1, i) == type)
                elements.push_back(read());
            else
                wrong = i;
            lua_pop(lua, 1);
        }
        if (wrong == 0)
            result = function(elements);
    }
    if (wrong != 0)
        return luaL_error(lua, "element %d has another type", static_cast<int>(wrong));
    lua_pushinteger(lua, result);
    return 1;
}

int count(lua_State* lua)
{
    return withList<LUA_TSTRING>(lua, &race::count, [lua] {
        std::size_t size = 0;
        char const* const text = lua_tolstring(lua, -1, &size);
        return std::string(text, size);
    });
}

int countNumbers(lua_State* lua)
{
    return withList<LUA_TNUMBER>(lua, &race::countNumbers, [lua] { return lua_tonumber(lua, -1); });
}

template <class Elements, class Push>
int pushList(lua_State* lua, Elements const& elements, Push push)
{
    lua_createtable(lua, static_cast<int>(elements.size()), 0);
    lua_Integer i = 0;
    for (auto const& element : elements) {
        push(element);
        lua_rawseti(lua, -2, ++i);
    }
    return 1;
}

int names(lua_State* lua)
{
    checkCount(lua, 0);
    return pushList(lua, race::names(),
                    [lua](std::string const& text) { lua_pushlstring(lua, text.data(), text.size()); });
}

int numbers(lua_State* lua)
{
    checkCount(lua, 0);
    return pushList(lua, race::numbers(), [lua](double number) { lua_pushnumber(lua, number); });
}

int fail(lua_State* lua)
{
    checkCount(lua, 0);
    race::fail();
    return 0;
}

void defineAdder(lua_State* lua)
{
    luaL_newmetatable(lua, adderType);
    lua_pushcfunction(lua, &guarded<&collectAdder>);
    lua_setfield(lua, -2, "__gc");
    lua_newtable(lua);
    lua_pushcfunction(lua, &guarded<&getSum>);
    lua_setfield(lua, -2, "getSum");
    lua_newtable(lua);
    lua_pushcfunction(lua, &guarded<&getTotal>);
    lua_setfield(lua, -2, "total");
    lua_pushcclosure(lua, &guarded<&index>, 2);
    lua_setfield(lua, -2, "__index");
    lua_newtable(lua);
    lua_pushcfunction(lua, &guarded<&setTotal>);
    lua_setfield(lua, -2, "total");
    lua_pushcclosure(lua, &guarded<&assign>, 1);
    lua_setfield(lua, -2, "__newindex");
    lua_pop(lua, 1);
}

template <int number>
void defineKind(lua_State* lua)
{
    luaL_newmetatable(lua, kindType<number>);
    lua_pushcfunction(lua, &guarded<&collectKind<number>>);
    lua_setfield(lua, -2, "__gc");
    lua_pop(lua, 1);
    lua_pushcfunction(lua, &guarded<&createKind<number>>);
    lua_setfield(lua, -2, kindType<number> + sizeof("race.") - 1);
}

template <int... numbers>
void defineKinds(lua_State* lua, std::integer_sequence<int, numbers...>)
{
    (defineKind<numbers>(lua), ...);
    lua_pushcfunction(lua, &guarded<&choose<numbers...>>);
    lua_setfield(lua, -2, "choose");
}

/// The table of userdata by native object keeps none of them.
void defineKnownObjects(lua_State* lua)
{
    lua_newtable(lua);
    lua_newtable(lua);
    lua_pushstring(lua, "v");
    lua_setfield(lua, -2, "__mode");
    lua_setmetatable(lua, -2);
    lua_rawsetp(lua, LUA_REGISTRYINDEX, &knownObjects);
}

} // namespace

extern "C" [[gnu::visibility("default")]] int luaopen_race_lua(lua_State* lua)
{
    defineKnownObjects(lua);
    defineAdder(lua);
    constexpr luaL_Reg functions[] = {
        {"Adder", &guarded<&createAdder>}, {"add", &guarded<&add>},     {"length", &guarded<&length>},
        {"name", &guarded<&name>},         {"self", &guarded<&self>},   {"describe", &guarded<&describe>},
        {"count", &guarded<&count>},       {"names", &guarded<&names>}, {"countNumbers", &guarded<&countNumbers>},
        {"numbers", &guarded<&numbers>},   {"fail", &guarded<&fail>},   {nullptr, nullptr}};
    luaL_newlib(lua, functions);
    defineKinds(lua, std::make_integer_sequence<int, race::kindCount>());
    return 1;
}
