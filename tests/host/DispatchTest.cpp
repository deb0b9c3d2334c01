#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <cmath>
#include <limits>

using namespace described;
using velmara::ArrayPtr;

namespace {

class DispatchTest : public HvmTest {
protected:
    /// Publishes a class "D" whose static method "f" has these overloads; each answers its place in the list.
    void publishOverloads(std::vector<std::vector<std::string>> const& overloads)
    {
        publish(new Class("D", [overloads](orbis::COSClass* cls) {
            for (std::size_t i = 0; i < overloads.size(); ++i)
                cls->addMethod(answering("f", overloads[i], static_cast<double>(i), {.isStatic = true}));
        }));
    }

    double callF(std::vector<hvArray_tag*> const& inputs) { return scalar<double>(hvm().callStatic("D", "f", inputs)); }

    template <class T>
    static ArrayPtr array(T value)
    {
        return matrix<T>(1, 1, {value});
    }

    static ArrayPtr text(char const* utf8) { return ArrayPtr(hvCreateString(utf8)); }
};

constexpr double huge = 1e300;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST_F(DispatchTest, PicksByNumberOfInputsAndBestFit)
{
    publishOverloads({{},
                      {"double scalar"},
                      {"int32 scalar"},
                      {"char vector"},
                      {"any"},
                      {"int32 scalar", "double scalar"},
                      {"double scalar", "double scalar"}});
    ArrayPtr const real = array(1.0), integer = array(std::int32_t(1)), word = text("x"), yes = array(true);
    ArrayPtr const single = array(1.5f);
    EXPECT_EQ(callF({}), 0);
    EXPECT_EQ(callF({real.get()}), 1);
    EXPECT_EQ(callF({integer.get()}), 2);
    EXPECT_EQ(callF({word.get()}), 3);
    EXPECT_EQ(callF({yes.get()}), 4) << "a logical is no number";
    EXPECT_EQ(callF({single.get()}), 1) << "a fraction fits no integer";
    EXPECT_EQ(callF({integer.get(), real.get()}), 5);
    EXPECT_EQ(callF({real.get(), real.get()}), 6);
}

// Twice each and in turns, so that names found a moment ago are found again beside others.
TEST_F(DispatchTest, MethodsOfAnyNameAndAnyNumberOfInputs)
{
    constexpr std::size_t most = 20;
    publish(new Class("D", [](orbis::COSClass* cls) {
        for (std::size_t size = 1; size <= most; ++size) {
            std::vector<std::string> const types(size, "int32 scalar");
            for (char const mark : {'a', 'b'}) {
                std::string name(size, 'x');
                name[size / 2] = mark;
                cls->addMethod(new Method(name, "double scalar", types,
                                          [mark](Call const& call) {
                                              auto const last = call.inputs[call.inputCount - 1].scalar<std::int32_t>();
                                              call.give(
                                                  COSValue(last * 100.0 + call.inputCount + (mark == 'b' ? 0.5 : 0.0)));
                                          },
                                          {.isStatic = true}));
            }
        }
    }));
    for (std::size_t const round : {1u, 2u}) {
        for (std::size_t size = 1; size <= most; ++size) {
            ArrayPtr const other = array(0.0), last = array(static_cast<double>(round));
            std::vector<hvArray_tag*> inputs(size, other.get());
            inputs.back() = last.get();
            std::string name(size, 'x');
            for (char const mark : {'a', 'b'}) {
                name[size / 2] = mark;
                double const expected = round * 100.0 + size + (mark == 'b' ? 0.5 : 0.0);
                EXPECT_EQ(scalar<double>(hvm().callStatic("D", name, inputs)), expected) << name;
            }
            name[size / 2] = 'c';
            EXPECT_EQ(errorOf([&] { hvm().callStatic("D", name, inputs); }), "VELMARA:member:unknown") << name;
        }
    }
}

TEST_F(DispatchTest, EquallyGoodOnesAreRefusedAndListed)
{
    publishOverloads({{"int32 scalar", "double scalar"}, {"double scalar", "int32 scalar"}, {"char", "char"}});
    ArrayPtr const real = array(1.0), integer = array(std::int32_t(1)), word = text("x");
    EXPECT_EQ(callF({integer.get(), real.get()}), 0);
    EXPECT_EQ(callF({word.get(), word.get()}), 2);
    expectMessage(
        [&] {
            callF({real.get(), real.get()});
        },
        {"VELMARA:dispatch:ambiguous: ",
         "f(a: int32 scalar, b: double scalar)\n  f(a: double scalar, b: int32 scalar)"});
    EXPECT_EQ(caught([&] { callF({real.get(), real.get()}); }, &velmara::Error::text).find("char"), std::string::npos);
}

TEST_F(DispatchTest, NoMatchSaysWhyForEachAndWhatWasGiven)
{
    publishOverloads({{"int32 scalar"}, {"char vector"}, {"double scalar", "double scalar"}});
    ArrayPtr const half = array(2.5);
    EXPECT_EQ(caught([&] { callF({half.get()}); }, &velmara::Error::what),
              "VELMARA:dispatch:noMatch: No \"f\" takes (double 1-by-1):\n"
              "  f(a: int32 scalar): a: 2.5 is no whole number\n"
              "  f(a: char vector): a: needs text, not double\n"
              "  f(a: double scalar, b: double scalar): takes 2 inputs");
}

TEST_F(DispatchTest, OfManyTheNearestAreListed)
{
    std::vector<std::vector<std::string>> overloads;
    for (std::size_t size = 0; size != 20; ++size)
        overloads.emplace_back(size, size % 2 == 1 ? "char vector" : "double scalar");
    overloads.push_back({"double scalar", "char vector"});
    publishOverloads(overloads);
    ArrayPtr const one = array(1.0), yes = array(true);
    EXPECT_EQ(caught(
                  [&] {
                      callF({one.get(), yes.get()});
                  },
                  &velmara::Error::text),
              "No \"f\" takes (double 1-by-1, logical 1-by-1):\n"
              "  f(a: double scalar, b: double scalar): b: needs a number, not logical\n"
              "  f(a: double scalar, b: char vector): b: needs text, not logical\n"
              "  f(a: char vector): takes 1 input\n"
              "  ... and 18 more");
}

TEST_F(DispatchTest, NumbersAreNeverCut)
{
    struct Row {
        std::string type;
        std::vector<double> fitting, refused;
    };
    constexpr double two31 = 2147483648.0, two53 = 9007199254740992.0, two63 = 9223372036854775808.0;
    Row const rows[] = {
        {"int8 scalar", {-128, 127}, {-129, 128}},
        {"uint8 scalar", {255, -0.0}, {-1}},
        {"int16 scalar", {}, {32768}},
        {"int32 scalar", {two31 - 1, -two31}, {two31, 0.5, notANumber, INFINITY}},
        {"uint32 scalar", {2 * two31 - 1}, {2 * two31}},
        {"int64 scalar", {-two63}, {two63}},
        {"uint64 scalar", {two63}, {2 * two63, huge}},
        {"single scalar", {0.1, notANumber, -INFINITY, 16777217, 1e11, 1e-300}, {huge, 3.5e38}},
        {"double scalar", {two53}, {}},
        {"logical scalar", {1}, {2, notANumber}},
    };
    publish(new Class("N", [&rows](orbis::COSClass* cls) {
        for (Row const& row : rows)
            cls->addMethod(answering(row.type, {row.type}, 1, {.isStatic = true}));
    }));
    for (auto const& [type, fitting, refused] : rows) {
        auto const outcome = [&, type = type](double value) {
            return errorOf([&] { hvm().callStatic("N", type, inputs(array(value))); });
        };
        for (double const value : fitting)
            EXPECT_EQ(outcome(value), "") << type << " " << value;
        for (double const value : refused)
            EXPECT_EQ(outcome(value), "VELMARA:dispatch:noMatch") << type << " " << value;
    }
}

TEST_F(DispatchTest, WholeNumbersOfOtherClassesKeepTheirValue)
{
    std::vector<double> seen;
    publish(new Class("N", [&seen](orbis::COSClass* cls) {
        auto const add = [&](char const* type, auto zero) {
            using T = decltype(zero);
            cls->addMethod(
                new Method(type, "", {type},
                           [&](Call const& call) { seen.push_back(static_cast<double>(call.inputs[0].scalar<T>())); },
                           {.isStatic = true}));
        };
        add("double scalar", double());
        add("uint64 scalar", std::uint64_t());
        add("int8 scalar", std::int8_t());
        add("single scalar", float());
    }));
    ArrayPtr const large = array(std::int64_t(1) << 60), odd = array((std::int64_t(1) << 53) + 1);
    ArrayPtr const negative = array(std::int16_t(-5));
    auto const call = [&](char const* type, ArrayPtr const& value) {
        return errorOf([&] { hvm().callStatic("N", type, inputs(value)); });
    };
    EXPECT_EQ(call("double scalar", large), "");
    EXPECT_EQ(call("uint64 scalar", large), "");
    EXPECT_EQ(call("single scalar", large), "");
    EXPECT_EQ(call("single scalar", odd), "") << "rounded, as a fraction is";
    EXPECT_EQ(call("int8 scalar", negative), "");
    EXPECT_EQ(seen,
              (std::vector<double>{std::ldexp(1, 60), std::ldexp(1, 60), std::ldexp(1, 60), std::ldexp(1, 53), -5}));
    EXPECT_EQ(call("double scalar", odd), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(call("uint64 scalar", negative), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(call("int8 scalar", large), "VELMARA:dispatch:noMatch");
}

TEST_F(DispatchTest, ArraysThatAreNoScalarsAreRefused)
{
    publishOverloads({{"double scalar"}, {"char vector"}});
    ArrayPtr const row(orbis::additions::createMatrix(1, 2, hvDOUBLE_CLASS));
    ArrayPtr const none(orbis::additions::createMatrix(0, 0, hvDOUBLE_CLASS));
    ArrayPtr const page(orbis::additions::createMatrix(2, 2, hvCHAR_CLASS));
    ArrayPtr const empty = text("");
    for (ArrayPtr const* refused : {&row, &none, &page})
        EXPECT_EQ(errorOf([&] { callF({refused->get()}); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(callF({empty.get()}), 1);
    EXPECT_EQ(errorOf([&] { callF({nullptr}); }), "VELMARA:dispatch:nullInput");
}

TEST_F(DispatchTest, ObjectsFitTheirClassAndItsSuperclassesTheNearestBest)
{
    publish(new Class("A"));
    publish(new Class("B", [](orbis::COSClass* cls) { setSuperclass(cls, "A"); }));
    publish(new Class("C", [](orbis::COSClass* cls) { setSuperclass(cls, "B"); }));
    publish(new Class("X"));
    publishOverloads({{"A"}, {"B"}, {"A vector", "logical scalar"}});
    ArrayPtr const a = hvm().construct("A"), b = hvm().construct("B"), c = hvm().construct("C"),
                   x = hvm().construct("X");
    EXPECT_EQ(callF({a.get()}), 0);
    EXPECT_EQ(callF({b.get()}), 1);
    EXPECT_EQ(callF({c.get()}), 1);
    EXPECT_EQ(errorOf([&] { callF({x.get()}); }), "VELMARA:dispatch:noMatch");
    ArrayPtr const yes = array(true), none(orbis::omCreateORBISMatrix(0, 0, "C")),
                   pair(orbis::omCreateORBISMatrix(1, 2, "A"));
    orbis::omSetArrayElement(pair.get(), 0, orbis::omGetArrayElement(c.get(), 0));
    EXPECT_EQ(callF({none.get()}), 1);
    EXPECT_EQ(errorOf([&] { callF({pair.get()}); }), "VELMARA:dispatch:noMatch");
    expectMessage([&] { callF({pair.get()}); }, {"f(a: A): a: needs one object, not 1-by-2"});
    EXPECT_EQ(callF({pair.get(), yes.get()}), 2);
    EXPECT_EQ(errorOf([&] { callF({x.get(), yes.get()}); }), "VELMARA:dispatch:noMatch");
    hvm().deleteObjects(a.get());
    EXPECT_EQ(errorOf([&] { callF({a.get()}); }), "VELMARA:object:invalid");
}

TEST_F(DispatchTest, MembersOpenToCalls)
{
    publish(new Class("M", [](orbis::COSClass* cls) {
        cls->addMethod(answering("hidden", {"M"}, 1, {.access = orbis::MemberAccess::Private}));
        cls->addMethod(answering("mixed", {"M"}, 1, {.access = orbis::MemberAccess::Protected}));
        cls->addMethod(answering("mixed", {"M", "any"}, 2));
        cls->addMethod(answering("abstract", {"M"}, 1, {.isAbstract = true}));
        cls->addMethod(answering("static", {"any"}, 3, {.isStatic = true}));
        cls->addMethod(answering("member", {"M"}, 4));
        cls->addMethod(new Method("nothing", "", {"M"}));
        cls->addMethod(new Method("lies", "int32 scalar", {"M"}, [](Call const& call) { call.give(COSValue(1.0)); }));
        cls->addMethod(new Method("liesMore", "char", {"M"},
                                  [](Call const& call) { call.give(COSValue(hvCreateCellMatrix(1, 1))); }));
    }));
    ArrayPtr const m = hvm().construct("M"), one = number(1);
    auto const errorOfCall = [&](char const* name) { return errorOf([&] { hvm().call(m.get(), name); }); };
    EXPECT_EQ(errorOfCall("hidden"), "VELMARA:member:access");
    EXPECT_EQ(errorOfCall("mixed"), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(scalar<double>(hvm().call(m.get(), "mixed", inputs(one))), 2);
    EXPECT_EQ(errorOfCall("abstract"), "VELMARA:member:abstract");
    EXPECT_EQ(errorOfCall("missing"), "VELMARA:member:unknown");
    EXPECT_EQ(scalar<double>(hvm().call(m.get(), "static", inputs(one))), 3);
    EXPECT_EQ(errorOf([&] { hvm().callStatic("M", "member"); }), "VELMARA:member:notStatic");
    EXPECT_EQ(hvm().call(m.get(), "nothing"), nullptr);
    EXPECT_EQ(errorOfCall("lies"), "VELMARA:result:type");
    EXPECT_EQ(errorOfCall("liesMore"), "VELMARA:result:type");
    EXPECT_EQ(errorOf([&] { hvm().call(one.get(), "member"); }), "VELMARA:object:notObject");
    ArrayPtr const none(orbis::omCreateORBISMatrix(0, 0, "M"));
    EXPECT_EQ(scalar<double>(hvm().call(none.get(), "member")), 4) << "the method itself decides about a null object";
}
