#include "show/NativeReading.hpp"

#include "lua/ScriptError.hpp"
#include "text/CutText.hpp"
#include "values/ScalarValue.hpp"

#include <algorithm>
#include <utility>

namespace velmara::console {

namespace {

/// For its lifetime native code is asked for a value.
class Showing {
public:
    explicit Showing(HostContext& context) : context_(context), previous_(std::exchange(context.isShowing(), true)) {}
    Showing(Showing const&) = delete;
    Showing& operator=(Showing const&) = delete;
    ~Showing() { context_.isShowing() = previous_; }

private:
    HostContext& context_;
    bool previous_;
};

MethodRecord const* findText(ClassRecord const& cls)
{
    auto const found = std::ranges::find_if(cls.methods, [](MethodRecord const& method) {
        return method.name == "text" && method.kind != MethodRecord::Kind::Constructor;
    });
    return found == cls.methods.end() ? nullptr : &*found;
}

} // namespace

NativeReading::NativeReading(lua_State* L, hvArray_tag* object, Read const& read) : call_(L)
{
    Showing const showing(HostContext::of(L));
    if (object)
        call_.share(object);
    try {
        Value const value = read(call_.hvm(), call_.failure());
        if (auto const& failure = call_.failure())
            throw Error(*failure);
        if (value.slot().isArray())
            value_ = call_.share(value.slot().array());
        else if (!value.slot().isEmpty())
            value_ = call_.share(toArray(value.slot()).get());
        shape_ = value.shape();
    } catch (Error const& error) {
        if (error.identifier() == interruptionIdentifier)
            throw; // it is meant for all that the script does
        failure_ = firstSentence(error.text());
    }
}

NativeReading readForShow(lua_State* L, hvArray_tag* object, std::string const& property)
{
    return {L, object, [&](Hvm& hvm, Hvm::Failure& failure) {
                MemberName name(className(object), property);
                return hvm.get(object, name, failure);
            }};
}

NativeReading readStaticForShow(lua_State* L, std::string const& className, std::string const& property)
{
    return {L, nullptr, [&](Hvm& hvm, Hvm::Failure&) { return Value(hvm.getStatic(className, property)); }};
}

bool hasText(ClassRecord const& cls)
{
    return findText(cls) != nullptr;
}

NativeReading readText(lua_State* L, hvArray_tag* object, ClassRecord const& cls)
{
    bool const isStatic = findText(cls)->kind == MethodRecord::Kind::StaticMethod;
    return {L, object, [&](Hvm& hvm, Hvm::Failure&) {
                return Value(isStatic ? hvm.callStatic(cls.name, "text", Hvm::Inputs(&object, 1))
                                      : hvm.call(object, "text"));
            }};
}

} // namespace velmara::console
