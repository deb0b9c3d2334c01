// expect: HandleClassInfo<T, 1> deletes native objects through T: give T a virtual destructor
#include "orbis/factory/classes/HandleClassInfo.hpp"

struct Native {
    EITHER(virtual ~Native() = default;, )
};

class Info final : public orbis::factory::HandleClassInfo<Native, 1> {
public:
    using HandleClassInfo::HandleClassInfo;
    void initializeClass(orbis::COSClass*) override {}
};
