// expect: HandleClassInfo<T, 1> deletes native objects through T: give T a virtual destructor
#include "orbis/factory/HandleClassInfo.hpp"

struct Native {
#ifdef CONTROL
    virtual ~Native() = default;
#endif
};

class Info final : public orbis::factory::HandleClassInfo<Native, 1> {
public:
    Info() : HandleClassInfo("tests.Native", "") {}
    void initializeClass(orbis::COSClass*) override {}
};
