// expect: A class published with NonHandleClassInfo crosses as a value: say `using Policy = ValuePolicy`
#include "orbis/factory/classes/NonHandleClassInfo.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"

struct Native {};

template <>
struct orbis::factory::HostClass<Native> {
    static constexpr char const* name = "tests.Native";
    EITHER(using Policy = ValuePolicy;, )
};

class Info final : public orbis::factory::NonHandleClassInfo<Native> {
public:
    Info() : NonHandleClassInfo("tests.Native", "") {}
    void initializeClass(orbis::COSClass*) override {}
};
