// expect LAMBDA: A package function is a free function, a static member function, a lambda or another class with one
// expect OPTIONAL: There is no marshaling policy for this native type
// expect OUTPUT: A parameter that is a reference to a non-const value cannot cross
// expect CLASS: This class is only declared here: include the header that defines it.
// expect ENUM: This enumeration is not published: publish it with orbis/factory/publishEnumeration.hpp, or
// expect below NAMES: More parameter names are listed than the function has parameters: remove the extra names.
// expect below TEXT: The parentheses of a parameter's text do not match
// expect KEPT: A function that scripts implement cannot return a pointer, a reference or a view
// expect DEFAULT: A default value does not convert to the type of its parameter
// expect FRACTION: A default value for an integer parameter is a floating-point number: write an integer.
#include "orbis/factory/describeFunctions.hpp"

#include "Published.hpp"

#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/types/function.hpp"
#include "orbis/factory/types/map.hpp"
#include "orbis/factory/withDefaults.hpp"

using orbis::factory::withDefaults;

struct Published {};
struct Unknown;
enum class Color { Red, Green };

void move(std::optional<OPTIONAL(double, std::initializer_list<int>)> distance);
void fill(OUTPUT(int const&, int&));
void use(CLASS(Published, Unknown) *);
void paint(ENUM(int, Color));
void onChange(std::function<KEPT(double, std::map<std::string, Published*>)(int)> const& callback);
double power(double base, int exponent);

void describeAll()
{
    int offset = 1;
    orbis::factory::describeFunctions()
        .function("shift", [offset](LAMBDA(int, auto) a) { return a + offset; })
        .function("move", &move, "distance")
        .function("fill", &fill)
        .function("use", &use)
        .function("paint", &paint)
        .function("onChange", &onChange)
        .function("power", &power, NAMES("a, b", "a, b, c"))
        .function("raised", &power, TEXT("a (one, two), b", "a (one, b"))
        .function("squared", &power, "base, exponent", withDefaults(DEFAULT(2, "two")))
        .function("squaredToo", &power, "base, exponent", withDefaults(FRACTION(2, 2.5)));
}
