#include "bindings/ClassBinding.hpp"

#include "bindings/ClassMembers.hpp"
#include "lua/ScriptError.hpp"
#include "values/HostCall.hpp"

namespace velmara::console {

namespace {

[[noreturn]] void failWithoutObject(std::string const& className, std::string const& property)
{
    fail("noObject", className + '.' + property + " is a property of the class's objects: write object." + property);
}

} // namespace

int construct(lua_State* L, std::string const& className)
{
    HostCall call(L);
    return call.finish(call.hvm().construct(className, call.inputs(2)));
}

int readClassMember(lua_State* L, std::string const& className, std::string const& member)
{
    MemberKind const kind = pushMember(L, className, member);
    if (kind == MemberKind::Callable)
        return 1;
    if (kind == MemberKind::Property)
        failWithoutObject(className, member);
    HostCall call(L);
    if (kind == MemberKind::Enumerator)
        return call.finish(call.hvm().getEnumerator(className, member));
    return call.finish(call.hvm().getStatic(className, member));
}

int writeClassMember(lua_State* L, std::string const& className, std::string const& member)
{
    if (checkProperty(L, className, member) == MemberKind::Property)
        failWithoutObject(className, member);
    HostCall call(L);
    call.hvm().setStatic(className, member, call.inputs(3).front());
    return 0;
}

} // namespace velmara::console
