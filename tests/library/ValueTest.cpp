#include "HvmTest.hpp"

#include "orbis/factory.hpp"

#include <list>

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

/// Trivially copied; compared by the parity of its number, so that `==` shows.
struct Parity {
    explicit Parity(double given) : number(given) {}
    friend bool operator==(Parity const& a, Parity const& b) { return int(a.number - b.number) % 2 == 0; }
    double number;
};

/// Declares a copy constructor that does not compile.
struct Owner {
    std::list<std::unique_ptr<int>> parts;
};

struct Parts : std::vector<std::unique_ptr<int>> {};

/// Compared only as what it converts to.
struct Truth {
    operator bool() const { return true; }
};

struct Label {
    explicit Label(std::string given) : text(std::move(given)) {}
    Label(Label const& other) : text(other.text + "'") {}
    std::string text;
};

struct Shape {
    virtual ~Shape() = default;
    bool operator==(Shape const&) const = default;
    double size = 1;
};

struct Square final : Shape {
    Square() { size = 2; }
};

struct Hidden final : Shape {};

/// Publishes a copying constructor of its own.
struct Own {
    int copies = 0;
};

static_assert(isValue<Parity> && !isValue<Owner> && !isValue<Parts> && isValue<Truth> && !isValue<Label>);
static_assert(!detail::hasEquality<Truth> && detail::hasEquality<Square>);

class ValueTest : public HvmTest {
protected:
    ValueTest()
    {
        registerModule("values", [](Module& values) {
            values.publish<Parity>("Parity").constructor<double>("number").property("number", &Parity::number);
            values.publish<Owner>("Owner").constructor();
            values.publish<Label>("Label").constructor<std::string>("text").copyable().property("text", &Label::text);
            values.publish<Shape>("Shape").constructor().property("size", &Shape::size);
            values.publish<Square>("Square").inherits<Shape>();
            values.publish<Own>("Own")
                .constructor()
                .constructor<Own const&>("original")
                .property("copies", &Own::copies);
            values.function(
                "hidden", +[]() -> std::unique_ptr<Shape> { return std::make_unique<Hidden>(); });
            values.function(
                "square", +[]() -> std::unique_ptr<Shape> { return std::make_unique<Square>(); });
        });
    }

    ArrayPtr make(char const* name, double value) { return hvm().construct(name, inputs(number(value))); }
    double get(ArrayPtr const& object, char const* property)
    {
        return scalar<double>(hvm().get(object.get(), property));
    }
};

} // namespace

TEST_F(ValueTest, CopiesAreObjectsOfTheirOwn)
{
    ArrayPtr const original = make("values.Parity", 3);
    ArrayPtr const copies[] = {hvm().copy(original.get()), hvm().construct("values.Parity", inputs(original))};
    for (ArrayPtr const& copy : copies) {
        EXPECT_FALSE(velmara::isSameObject(copy.get(), original.get()));
        hvm().set(copy.get(), "number", number(4).get());
        EXPECT_EQ(get(copy, "number"), 4);
        EXPECT_EQ(get(original, "number"), 3);
    }
    ArrayPtr const null(omCreateORBISMatrix(0, 0, "values.Parity"));
    expectMessage([&] { hvm().construct("values.Parity", inputs(null)); }, {"null_input", "Input \"other\""});
    expectMessage([&] { hvm().copy(null.get()); }, {"VELMARA:object:notCopyable", "values.Parity"});
    EXPECT_EQ(errorOf([&] { hvm().construct("values.Parity"); }), "VELMARA:dispatch:noMatch");

    ArrayPtr const label = hvm().construct("values.Label", inputs(ArrayPtr(hvCreateString("text"))));
    ArrayPtr const text = hvm().get(hvm().copy(label.get()).get(), "text");
    EXPECT_EQ(text->get_number_of_elements(), 5u);
    expectMessage([&] { hvm().copy(hvm().construct("values.Owner").get()); },
                  {"VELMARA:object:notCopyable", "values.Owner"});
    EXPECT_EQ(hvm().describeClass("values.Own").methods.size(), 2u);
    hvm().copy(hvm().construct("values.Own").get());
}

TEST_F(ValueTest, CopiesAreWhole)
{
    ArrayPtr const square = hvm().callFunction("values.square");
    ArrayPtr const hidden = hvm().callFunction("values.hidden");
    ArrayPtr const copy = hvm().copy(square.get());
    EXPECT_EQ(velmara::className(copy.get()), "values.Square");
    EXPECT_EQ(get(copy, "size"), 2);
    EXPECT_EQ(errorOf([&] { hvm().construct("values.Square", inputs(square)); }), "VELMARA:class:access");
    for (ArrayPtr const* const derived : {&square, &hidden})
        expectMessage([&] { hvm().construct("values.Shape", inputs(*derived)); },
                      {"cannot_copy", "\"values.Shape\"", "derived class"});
    expectMessage([&] { hvm().copy(hidden.get()); }, {"cannot_copy", "Hidden"});
}

TEST_F(ValueTest, ObjectsOfOneClassAreComparedAsInNativeCode)
{
    ArrayPtr const three = make("values.Parity", 3);
    EXPECT_TRUE(hvm().areEqual(three.get(), make("values.Parity", 5).get()));
    EXPECT_FALSE(hvm().areEqual(three.get(), make("values.Parity", 4).get()));
    ArrayPtr const shape = hvm().construct("values.Shape");
    EXPECT_TRUE(hvm().areEqual(shape.get(), hvm().construct("values.Shape").get()));
    ArrayPtr const square = hvm().callFunction("values.square");
    hvm().set(square.get(), "size", number(1).get());
    EXPECT_FALSE(hvm().areEqual(shape.get(), square.get()));
    EXPECT_FALSE(hvm().areEqual(shape.get(), three.get()));
    EXPECT_TRUE(hvm().describeClass("values.Shape").hasEquality);
    EXPECT_FALSE(hvm().describeClass("values.Label").hasEquality);
}
