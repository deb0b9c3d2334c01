// expect BASE: A getter is a data member or a member function without parameters, of the class or a public
// expect GETTER: A getter is a data member or a member function without parameters, of the class or a public
// expect SETTER: The setter takes another type than the getter gives: make the two types one.
// expect CONSTANT: A setter is a data member that is not const or a member function that takes one value, of the
// expect RELEASE: A release routine is a member function without parameters, or a free function
// expect STATIC: A static property has no object: give static data, or a free function
// expect OBJECT: A free function published as a method takes a pointer to the class first
// expect DEFAULTS: There are more default values than parameters that can have one
// expect POLICY: There is no marshaling policy for this native type: include the header of its policy, or specialise
// expect SHARED: Objects of this class cross in std::shared_ptr: derive the class from full::StdShareable.
#include "orbis/factory/describe.hpp"

#include "Published.hpp"

#include "orbis/factory/types/SharedPointerPolicy.hpp"
#include "orbis/factory/withDefaults.hpp"

struct Other {
    int other = 0;
};

struct Published : BASE(public, private) Other, orbis::factory::full::SHARED(StdShareable, Wrappable) {
    int get(GETTER(, int)) const { return 0; }
    int value() const { return 0; }
    void setValue(SETTER(int const&, double)) {}
    int CONSTANT(, const) data = 0;
    int lock() { return 0; }
    void unlock(RELEASE(, int)) {}
    STATIC(inline static, ) int common = 0;
    void take(POLICY(double, long double)) {}
};

int size(OBJECT(Published const*, int));
void move(Published* point, double distance);

auto const described =
    orbis::factory::describe<Published>()
        .property("other", &Other::other)
        .property("get", &Published::get)
        .property("value", &Published::value, &Published::setValue)
        .writeOnlyProperty("data", &Published::data)
        .property("locked", orbis::factory::releasedBy<&Published::unlock>(&Published::lock))
        .staticProperty("common", &Published::common)
        .method("size", &size)
        .method("move", &move, "point, distance", orbis::factory::withDefaults(DEFAULTS(1.0, nullptr, 1.0)))
        .method("take", &Published::take)
        .method("again", &Published::take)
        .staticMethod("make", [] { return std::make_shared<Published>(); });
