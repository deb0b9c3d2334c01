// expect: The class and its superclass are not bound as one class: say `using Root = ...`
#include "orbis/factory/describe.hpp"

struct Base {
    virtual ~Base() = default;
};
struct Derived : Base {};

template <>
struct orbis::factory::HostClass<Base> {
    static constexpr char const* name = "tests.Base";
    using Root = Base;
};
template <>
struct orbis::factory::HostClass<Derived> {
    static constexpr char const* name = "tests.Derived";
    EITHER(using Root = Base;, )
};

auto const description = orbis::factory::describe<Derived>().inherits<Base>();
