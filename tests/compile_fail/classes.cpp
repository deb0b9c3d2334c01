// expect DESTRUCTOR: HandleClassInfo<T, 1> deletes native objects through T: give T a virtual destructor
// expect POLICY: A class published with NonHandleClassInfo crosses as a value: say `using Policy = ValuePolicy`
// expect ROOT: The class and its superclass are not bound as one class: say `using Root = ...`
// expect NAMES: Each enumerator has a name of its own: give every entry of HostEnumeration<E>::enumerators another one
#include "orbis/factory/classes/EnumerationClassInfo.hpp"
#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/classes/NonHandleClassInfo.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"

struct Base {
    DESTRUCTOR(virtual ~Base() = default;, )
};
struct Derived : Base {};
struct Value {};
enum class Color { Red, Green };

template <>
struct orbis::factory::HostClass<Base> {
    static constexpr char const* name = "tests.Base";
    using Root = Base;
};
template <>
struct orbis::factory::HostClass<Derived> {
    static constexpr char const* name = "tests.Derived";
    ROOT(using Root = Base;, )
};
template <>
struct orbis::factory::HostClass<Value> {
    static constexpr char const* name = "tests.Value";
    POLICY(using Policy = ValuePolicy;, )
};
template <>
struct orbis::factory::HostEnumeration<Color> {
    static constexpr char const* name = "tests.Color";
    static constexpr Enumerator<Color> enumerators[] = {{"Red", Color::Red}, {NAMES("Green", "Red"), Color::Green}};
};

struct BaseInfo final : orbis::factory::HandleClassInfo<Base, 1> {
    BaseInfo() : HandleClassInfo("tests.Base", "") {}
    void initializeClass(orbis::COSClass*) override {}
};
struct ValueInfo final : orbis::factory::NonHandleClassInfo<Value> {
    ValueInfo() : NonHandleClassInfo("tests.Value", "") {}
    void initializeClass(orbis::COSClass*) override {}
};
orbis::factory::EnumerationClassInfo<Color> const color("");
auto const derived = orbis::factory::describe<Derived>().inherits<Base>();
