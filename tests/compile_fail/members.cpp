// expect BASE: A getter is a data member or a member function without parameters, of the class or a public
// expect GETTER: A getter is a data member or a member function without parameters, of the class or a public
// expect SETTER: The setter takes another type than the getter gives: make the two types one.
// expect CONSTANT: A setter is a data member that is not const or a member function that takes one value, of the
// expect RELEASE: A release routine is a member function without parameters, or a free function
// expect STATIC: A static property has no object: give static data, or a free function
// expect OBJECT: A free function published as a method takes a pointer to the class first
// expect DEFAULTS: There are more default values than parameters that can have one
// expect POLICY: There is no marshaling policy for this native type: include the header of its policy, or specialise
// expect RVALUE: A member function with && is called on objects that are about to be destroyed
// expect below PICK: overload
// expect below AMISS: overload
// expect OWNER: owned(...), copied(...), borrowed(...) and inside(...) are for functions that return an object
// expect VALUE: Objects of a class with a HostClass do not cross by value
// expect MARSHALER: The policy of this native type has no marshaler: specialise orbis::factory::Marshaler for it
// expect NAME: The marshaler of this native type lacks the name of the host data type
// expect FROM: The marshaler of this native type lacks the conversion of arguments
// expect TO: The marshaler of this native type does not convert such results
// expect DECLARED: This class is only declared here: include the header that defines it.
// expect SHARED: Objects of this class cross in std::shared_ptr: derive the class from full::StdShareable.
#include "orbis/factory/describe.hpp"

#include "Published.hpp"

#include "orbis/factory/ObjectHandle.hpp"
#include "orbis/factory/resultOwners.hpp"
#include "orbis/factory/types/SharedPointerPolicy.hpp"
#include "orbis/factory/withDefaults.hpp"

using orbis::factory::borrowed, orbis::factory::constOverload, orbis::factory::overload, orbis::factory::owned;

struct Other {
    int other = 0;
};

struct Temperature {};
struct OwnPolicy {};
template <>
struct orbis::factory::MarshalingPolicy<Temperature> {
    using Type = OwnPolicy;
};
MARSHALER(
    template <> struct orbis::factory::Marshaler<OwnPolicy> {
        template <class T>
        static char const* NAME(dataTypeText, name)();
        template <class T>
        static void TO(toHost, to)(T const&, hvArray**);
        template <class T>
        static T FROM(fromHost, from)(hvArray_tag const*);
    };
    , )

// A handle may be declared before its class is known.
struct Neighbour;
struct Holder {
    orbis::factory::ObjectHandle<Neighbour> neighbour;
};
DECLARED(struct Neighbour{};, )
void clear(Holder& holder)
{
    holder.neighbour.reset();
}

struct Published : BASE(public, private) Other, orbis::factory::full::SHARED(StdShareable, Wrappable) {
    int get(GETTER(, int)) const { return 0; }
    int value() const { return 0; }
    void setValue(SETTER(int const&, double)) {}
    int CONSTANT(, const) data = 0;
    int lock() { return 0; }
    void unlock(RELEASE(, int)) {}
    STATIC(inline static, ) int common = 0;
    void take(POLICY(double, long double)) {}
    void rvalue() RVALUE(&, &&) {}
    double& at(int) noexcept;
    double const& at(int) const;
    void swap(Published& other, Published const& third) const& noexcept;
    VALUE(Published&, Published) itself();
    Published& here();
    Temperature warm(Temperature);
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
        .method("rvalue", &Published::rvalue)
        .method("at", PICK(overload<int>, )(&Published::at))
        .method("read", constOverload<AMISS(int, char)>(&Published::at))
        .method("swap", &Published::swap)
        .method("itself", &Published::itself)
        .method("here", borrowed(&Published::OWNER(here, value)))
        .method("warm", &Published::warm)
        .method("again", &Published::take)
        .staticMethod("make", [] { return std::make_shared<Published>(); });
