// expect: Objects of this class cross in std::shared_ptr: derive the class from full::StdShareable.
#include "orbis/factory/SharedPointerPolicy.hpp"
#include "orbis/factory/describe.hpp"

#ifdef CONTROL
struct Native : orbis::factory::full::StdShareable {};
#else
struct Native {};
#endif

template <>
struct orbis::factory::HostClass<Native> {
    static constexpr char const* name = "tests.Native";
};

auto const description =
    orbis::factory::describe<Native>().staticMethod("make", [] { return std::make_shared<Native>(); });
