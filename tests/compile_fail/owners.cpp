// expect COPIED: This object cannot be copied: its class has no public copy constructor
// expect KEPT: A parameter that is kept or taken is a pointer or a reference to an object of a class
// expect FUNCTION: Without an object that the member is called on, nothing is kept
// expect INDEX: The function has no such parameter: they are counted from 0.
// expect OWNED: owned(...), copied(...), borrowed(...) and inside(...) are for functions that return an object
// expect COPYABLE: This object cannot be copied: its class has no public copy constructor
#include "orbis/factory.hpp"

struct Part {
    Part() = default;
    COPIED(, Part(Part const&) = delete;)
};
struct Only {
    Only() = default;
    COPYABLE(, Only(Only const&) = delete;)
};
struct Whole {
    Part const& part() const;
    void hold(KEPT(Part&, int));
    void take(Part&);
    int made() const;
    Part& second();
};
void use(Part&);

void describe(orbis::factory::Module& module)
{
    using namespace orbis::factory;
    module.publish<Whole>("Whole")
        .method("part", copied(&Whole::part))
        .method("hold", kept(&Whole::hold))
        .method("same", taken<INDEX(0, 1)>(&Whole::take))
        .method("second", owned(&Whole::OWNED(second, made)));
    module.publish<Only>("Only").copyable();
    module.function("use", FUNCTION(taken, kept)(&use));
}
