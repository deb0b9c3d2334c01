#include "library/FunctionsTest.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/classes/EnumerationClassInfo.hpp"
#include "orbis/factory/publishEnumeration.hpp"
#include "orbis/factory/registerModule.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/types/nestedVectors.hpp"
#include "orbis/factory/types/variant.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

enum class Color : unsigned char { Red = 1, Green, Blue = 200, Crimson = Red };

/// Its class is defined in the host, where the names have other values.
enum Mode { modeOff = -1, modeOn = 1, modeAuto = 7 };

/// Named by a module.
enum class Gear : signed char { Reverse = -1, Neutral, First };
enum class Seat { Front };

} // namespace

template <>
struct orbis::factory::HostEnumeration<Color> {
    static constexpr char const* name = "tests.Color";
    static constexpr Enumerator<Color> enumerators[] = {
        {"Blue", Color::Blue}, {"Red", Color::Red}, {"Crimson", Color::Crimson}, {"Green", Color::Green}};
};

template <>
struct orbis::factory::HostEnumeration<Mode> {
    static constexpr char const* name = "tests.host.Mode";
    static constexpr bool isVelmaraImplemented = true;
    static constexpr std::array<Enumerator<Mode>, 3> enumerators = {
        {{"Off", modeOff}, {"On", modeOn}, {"Auto", modeAuto}}};
};

namespace {

class Lamp {
public:
    explicit Lamp(Color color) : color_(color) { ++alive; }
    virtual ~Lamp() { --alive; }
    Color color() const { return color_; }
    void setColor(Color const& color) { color_ = color; }
    static Color unnamed() { return Color(9); }

    inline static int alive = 0;

private:
    Color color_;
};

Color next(Color color)
{
    return color == Color::Red ? Color::Green : color == Color::Green ? Color::Blue : Color::Red;
}

std::vector<Color> reversed(std::vector<Color> const& colors)
{
    return {colors.rbegin(), colors.rend()};
}

int numberOf(Color color)
{
    return static_cast<int>(color);
}

} // namespace

PUBLISHED_IN_TESTS(Lamp)

namespace {

void describeLamp(ClassDescriber<Lamp>& lamp)
{
    lamp.constructor<Color>("color")
        .method("get", &Lamp::color)
        .method("set", &Lamp::setColor)
        .staticMethod("unnamed", &Lamp::unnamed)
        .property("color", &Lamp::color, &Lamp::setColor)
        .staticProperty("first", [] { return Color::Blue; });
}

class EnumerationTest : public FunctionsTest {
protected:
    EnumerationTest()
    {
        registerOrbisPackage("tests", [](COSPackage* package) {
            package->addClass(new EnumerationClassInfo<Color>("What a lamp shines in"));
            package->addClass(new Described<Lamp>(&describeLamp));
        });
        publishFunctions(describeFunctions()
                             .function("next", &next, "color")
                             .function("reversed", &reversed)
                             .function("numberOf", &numberOf)
                             .function("orRed", [](std::optional<Color> c) { return c.value_or(Color::Red); })
                             .function("unnamed",
                                       [] {
                                           return std::vector({Color::Red, Color(9)});
                                       })
                             .function("mode", [](int mode) { return Mode(mode); })
                             .function("numberOfMode", [](Mode mode) { return int(mode); })
                             .function("modes", [](std::vector<Mode> modes) { return modes; }));
    }
    ~EnumerationTest() override { EXPECT_EQ(Lamp::alive, 0); }

    ArrayPtr color(char const* name) { return hvm().getEnumerator("tests.Color", name); }
    static ArrayPtr text(char const* text) { return ArrayPtr(hvCreateString(text)); }

    /// The names of the enumerators in an array.
    static std::string names(ArrayPtr const& array)
    {
        std::string text = std::to_string(array->get_dimensions()[0]) + "-by-n";
        for (std::size_t i = 0; i < array->get_number_of_elements(); ++i)
            text += std::string(" ") + host_extensions::describeEnumerator(objectIn(array, i))->name;
        return text;
    }
};

std::string const unknown = "orbis_factory:orbis_factory:no_such_enumerator: Enumeration ";

} // namespace

TEST_F(EnumerationTest, CrossesByName)
{
    velmara::ClassRecord const listed = hvm().describeClass("tests.Color");
    ASSERT_EQ(listed.enumerators.size(), 4u);
    EXPECT_EQ(listed.enumerators[0].value, 200);
    EXPECT_STREQ(detail::enumerationRecord<Color>.byValue[0].name, "Red") << "the first of two names";
    EXPECT_EQ(listed.description, "What a lamp shines in");
    EXPECT_TRUE(velmara::isSameObject(call("next", color("Red")).get(), color("Green").get()));
    for (char const* name : {"Red", "Crimson"})
        EXPECT_EQ(scalar<std::int32_t>(call("numberOf", text(name))), 1);
    EXPECT_EQ(names(call("next", number(200))), "1-by-n Red");
    EXPECT_EQ(names(call("reversed", number(2))), "1-by-n Green");
    ArrayPtr const cells(hvCreateCellMatrix(3, 1));
    hvSetCell(cells.get(), 0, hvCreateString("Red"));
    hvSetCell(cells.get(), 1, color("Blue").release());
    hvSetCell(cells.get(), 2, hvCreateString("Crimson"));
    EXPECT_EQ(names(call("reversed", cells)), "1-by-n Red Blue Red");
    ArrayPtr const none(host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS));
    EXPECT_EQ(names(call("reversed", none)), "1-by-n");
    EXPECT_EQ(names(call("orRed", none)), "1-by-n Red");
    EXPECT_EQ(names(call("orRed", text("Blue"))), "1-by-n Blue");
    expectMessage([&] { call("next", text("Purple")); },
                  {"color: needs one of Blue, Red, Crimson, Green, not 'Purple'"});
}

TEST_F(EnumerationTest, InMembersOfEveryKind)
{
    ArrayPtr const red = color("Red"), blue = color("Blue");
    ArrayPtr const lamp = hvm().construct("tests.Lamp", inputs(text("Green")));
    EXPECT_EQ(names(hvm().call(lamp.get(), "get")), "1-by-n Green");
    hvm().call(lamp.get(), "set", inputs(red));
    EXPECT_TRUE(velmara::isSameObject(hvm().get(lamp.get(), "color").get(), red.get()));
    hvm().set(lamp.get(), "color", blue.get());
    EXPECT_EQ(names(hvm().get(lamp.get(), "color")), "1-by-n Blue");
    EXPECT_EQ(errorOf([&] { hvm().set(lamp.get(), "color", lamp.get()); }), "VELMARA:property:value");
    EXPECT_EQ(names(hvm().getStatic("tests.Lamp", "first")), "1-by-n Blue");
    velmara::ClassRecord const listed = hvm().describeClass("tests.Lamp");
    EXPECT_EQ(listed.methods.at(0).inputs.at(0).dataType, "tests.Color");
    EXPECT_EQ(listed.properties.at(0).dataType, "tests.Color");
    EXPECT_EQ(hvm().describeFunction("tests.reversed").outputs.at(0).dataType, "tests.Color vector");
}

TEST_F(EnumerationTest, ValuesWithoutANameAreRefused)
{
    std::string const text =
        unknown + "tests.Color cannot pass on 9, which the host and the native code do not both have: the native code "
                  "has Blue, Red, Crimson, Green.";
    expectMessage([&] { hvm().callStatic("tests.Lamp", "unnamed"); }, {text});
    expectMessage([&] { call("unnamed"); }, {text});
    EXPECT_THROW(detail::enumeratorFromHost(detail::enumerationRecord<Color>, nullptr), std::exception);
}

TEST_F(EnumerationTest, HostLanguageEnumerationsAreMatchedByName)
{
    EXPECT_EQ(errorOf([&] { call("mode", number(modeOn)); }), "orbis_factory:orbis_factory:no_such_class");
    // Auto is missing; On is called Running first; Odd is not known to the native code.
    std::vector<velmara::EnumeratorRecord> const modes{{"Odd", 1}, {"Running", 50}, {"On", 50}, {"Off", 60}};
    hvm().defineEnumeration("tests.host.Mode", modes);
    ArrayPtr const on = hvm().getEnumerator("tests.host.Mode", "Running");
    EXPECT_TRUE(velmara::isSameObject(call("mode", number(modeOn)).get(), on.get()));
    EXPECT_EQ(scalar<std::int32_t>(call("numberOfMode", on)), modeOn);
    EXPECT_EQ(scalar<std::int32_t>(call("numberOfMode", number(60))), modeOff);
    EXPECT_EQ(names(call("modes", text("Off"))), "1-by-n Off");
    for (auto const& [function, given, refused] :
         {std::tuple("mode", modeAuto, "Auto"), {"numberOfMode", modeOn, "Odd"}}) {
        expectMessage([&] { call(function, number(given)); },
                      {unknown + "tests.host.Mode cannot pass on " + refused + ","});
    }
}

namespace {

/// Reaches a private operation.
using ScalarClassID = COSNameID (*)(COSNameID const&);
ScalarClassID scalarClassID();

template <ScalarClassID Operation>
struct Reach {
    friend ScalarClassID scalarClassID() { return Operation; }
};
template struct Reach<&Marshaler<EnumClassArrayPolicy>::getScalarClassID>;

TEST_F(EnumerationTest, AModuleNamesAnEnumeration)
{
    using Gears = std::vector<std::vector<Gear>>;
    auto const fill = [](Module& cars) {
        cars.function(
                "next", +[](Gear gear) { return Gear(int(gear) + 1); }, "gear")
            .function(
                "reversed", +[](std::vector<Gear> const& gears) { return std::vector(gears.rbegin(), gears.rend()); })
            .function(
                "nested", +[](Gears const& gears) { return gears; })
            .function(
                "either", +[](std::variant<double, Gear> const& value) { return int(value.index()); });
        publishEnumeration<Gear>(
            cars, "Gear", {{"Neutral", Gear::Neutral}, {"First", Gear::First}, {"Back", Gear::Reverse}}, "Of a car");
    };
    registerModule("cars", fill);
    EXPECT_EQ(hvm().describeClass("cars.Gear").description, "Of a car");
    ArrayPtr const back = hvm().getEnumerator("cars.Gear", "Back");
    EXPECT_TRUE(velmara::isSameObject(hvm().callFunction("cars.next", inputs(back)).get(),
                                      hvm().getEnumerator("cars.Gear", "Neutral").get()));
    EXPECT_EQ(hvm().describeFunction("cars.reversed").signature,
              "result = reversed(p0: cars.Gear vector) -> cars.Gear vector");
    expectMessage([&] { hvm().callFunction("cars.next", inputs(hvm().getEnumerator("cars.Gear", "First"))); },
                  {"no_such_enumerator", "cars.Gear", "Neutral, First, Back"});
    EXPECT_EQ(scalar<std::int32_t>(hvm().callFunction("cars.either", inputs(back))), 1);
    registerModule("seats", [](Module& seats) {
        seats.function(
            "seat", +[](Seat seat) { return seat; });
    });
    expectMessage([&] { hvm().callFunction("seats.seat"); }, {"Seat is not published: publish it in the same module"});
    for (auto const& [package, other] : {std::pair("cars.more", Gear::Neutral), std::pair("others", Gear::First)}) {
        registerModule(package, [=](Module& again) { publishEnumeration<Gear>(again, "Gear", {{"Neutral", other}}); });
        expectMessage([&] { hvm().describeClass(std::string(package) + ".Gear"); }, {"it is \"cars.Gear\""});
    }
    registerModule("twice", [](Module& twice) {
        publishEnumeration<Seat>(twice, "Seat", {{"Front", Seat::Front}, {"Front", Seat(2)}});
    });
    expectMessage([&] { hvm().describeClass("twice.Seat"); }, {"Seat needs a name of its own"});
}

} // namespace

TEST_F(EnumerationTest, TheElementsTypeNameIsWithoutTheLastSevenCharacters)
{
    for (auto const& [array, element] : {std::pair("tests.Color vector", "tests.Color"),
                                         {"a vector of things", "a vector of"},
                                         {" vector", ""},
                                         {"vector", "vector"},
                                         {"tests.Color", "tests.Color"}})
        EXPECT_EQ(scalarClassID()(array), COSNameID(element)) << array;
}
