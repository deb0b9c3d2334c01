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

    template <class... A>
    double callF(A const&... arrays)
    {
        return scalar<double>(hvm().callStatic("D", "f", inputs(arrays...)));
    }

    /// The identifier and the text with which a call of "f" is refused.
    template <class... A>
    std::string refusal(A const&... arrays)
    {
        return caught([&] { callF(arrays...); }, &velmara::Error::what);
    }

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
    ArrayPtr const real = array(1.0), integer = array(std::int32_t(1));
    EXPECT_EQ(callF(), 0);
    EXPECT_EQ(callF(real), 1);
    EXPECT_EQ(callF(integer), 2);
    EXPECT_EQ(callF(text("x")), 3);
    EXPECT_EQ(callF(array(true)), 4) << "a logical is no number";
    EXPECT_EQ(callF(array(1.5f)), 1) << "a fraction fits no integer";
    EXPECT_EQ(callF(integer, real), 5);
    EXPECT_EQ(callF(real, real), 6);
}

// Twice each and in turns: recently found names are found again beside others.
TEST_F(DispatchTest, MethodsOfAnyNameAndAnyNumberOfInputs)
{
    constexpr std::size_t maxInputs = 20;
    auto const nameOf = [](std::size_t size, char mark) {
        std::string name(size, 'x');
        name[size / 2] = mark;
        return name;
    };
    publish(new Class("D", [&](orbis::COSClass* cls) {
        for (std::size_t size = 1; size <= maxInputs; ++size)
            for (char const mark : {'a', 'b'}) {
                auto const answer = [mark](Call const& call) {
                    auto const last = call.inputs[call.inputCount - 1].scalar<std::int32_t>();
                    call.give(COSValue(last * 1e6 + call.inputCount * 1e3 + mark));
                };
                std::vector<std::string> const types(size, "int32 scalar");
                cls->addMethod(new Method(nameOf(size, mark), "double scalar", types, answer, {.isStatic = true}));
            }
    }));
    for (double const round : {1, 2}) {
        for (std::size_t size = 1; size <= maxInputs; ++size) {
            ArrayPtr const other = array(0.0), last = array(round);
            std::vector<hvArray_tag*> inputs(size, other.get());
            inputs.back() = last.get();
            auto const call = [&](char mark) { return hvm().callStatic("D", nameOf(size, mark), inputs); };
            for (char const mark : {'a', 'b'})
                EXPECT_EQ(scalar<double>(call(mark)), round * 1e6 + size * 1e3 + mark) << size << mark;
            EXPECT_EQ(errorOf([&] { call('c'); }), "VELMARA:member:unknown") << size;
        }
    }
}

TEST_F(DispatchTest, EquallyGoodOverloadsAreRefusedAndListed)
{
    publishOverloads({{"int32 scalar", "double scalar"}, {"double scalar", "int32 scalar"}, {"char", "char"}});
    ArrayPtr const real = array(1.0);
    EXPECT_EQ(callF(array(std::int32_t(1)), real), 0);
    EXPECT_EQ(callF(text("x"), text("x")), 2);
    EXPECT_EQ(refusal(real, real),
              "VELMARA:dispatch:ambiguous: Several \"f\" take (double 1-by-1, double 1-by-1) equally well:\n"
              "  f(a: int32 scalar, b: double scalar)\n"
              "  f(a: double scalar, b: int32 scalar)");
}

TEST_F(DispatchTest, NoMatchSaysWhyForEachAndWhatWasGiven)
{
    publishOverloads({{"int32 scalar"}, {"char vector"}, {"double scalar", "double scalar"}});
    EXPECT_EQ(refusal(array(2.5)), "VELMARA:dispatch:noMatch: No \"f\" takes (double 1-by-1):\n"
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
    EXPECT_EQ(refusal(array(1.0), array(true)),
              "VELMARA:dispatch:noMatch: No \"f\" takes (double 1-by-1, logical 1-by-1):\n"
              "  f(a: double scalar, b: double scalar): b: needs a number, not logical\n"
              "  f(a: double scalar, b: char vector): b: needs text, not logical\n"
              "  f(a: char vector): takes 1 input\n"
              "  ... and 18 more");
}

TEST_F(DispatchTest, NumbersAreNeverCut)
{
    constexpr double two31 = 2147483648.0, two53 = 9007199254740992.0, two63 = 9223372036854775808.0;
    std::tuple<std::string, std::vector<double>, std::vector<double>> const rows[] = {
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
        for (auto const& [type, fitting, refused] : rows)
            cls->addMethod(answering(type, {type}, 1, {.isStatic = true}));
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
    publish(new Class("N", [](orbis::COSClass* cls) {
        auto const add = [&](char const* type, auto zero) {
            auto const answer = [](Call const& call) {
                call.give(COSValue(static_cast<double>(call.inputs[0].scalar<decltype(zero)>())));
            };
            cls->addMethod(new Method(type, "double scalar", {type}, answer, {.isStatic = true}));
        };
        add("double scalar", double());
        add("uint64 scalar", std::uint64_t());
        add("int8 scalar", std::int8_t());
        add("single scalar", float());
    }));
    ArrayPtr const large = array(std::int64_t(1) << 60), odd = array((std::int64_t(1) << 53) + 1);
    ArrayPtr const negative = array(std::int16_t(-5));
    using Case = std::tuple<char const*, ArrayPtr const&, std::optional<double>>; // none where it is refused
    for (auto const& [type, given, value] :
         {Case{"double scalar", large, 0x1p60}, Case{"uint64 scalar", large, 0x1p60},
          Case{"single scalar", large, 0x1p60}, Case{"single scalar", odd, 0x1p53}, Case{"int8 scalar", negative, -5},
          Case{"double scalar", odd, std::nullopt}, Case{"uint64 scalar", negative, std::nullopt},
          Case{"int8 scalar", large, std::nullopt}}) {
        std::optional<double> seen;
        auto const call = [&, t = type, &g = given] { seen = scalar<double>(hvm().callStatic("N", t, inputs(g))); };
        EXPECT_EQ(errorOf(call), value ? "" : "VELMARA:dispatch:noMatch") << type;
        EXPECT_EQ(seen, value) << type;
    }
}

TEST_F(DispatchTest, ArraysThatAreNoScalarsAreRefused)
{
    publishOverloads({{"double scalar"}, {"char vector"}});
    ArrayPtr const row = matrix<double>(1, 2, {0, 0}), none = matrix<double>(0, 0, {}),
                   page(orbis::host_extensions::createMatrix(2, 2, hvCHAR_CLASS));
    for (ArrayPtr const* const refused : {&row, &none, &page})
        EXPECT_EQ(errorOf([&] { callF(*refused); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(callF(text("")), 1);
    EXPECT_EQ(errorOf([&] { callF(ArrayPtr()); }), "VELMARA:dispatch:nullInput");
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
    ArrayPtr const yes = array(true), none(orbis::omCreateORBISMatrix(0, 0, "C")), pair = rowOf("A", {&c, nullptr});
    EXPECT_EQ(callF(a), 0);
    for (ArrayPtr const* const fitting : {&b, &c, &none})
        EXPECT_EQ(callF(*fitting), 1);
    EXPECT_EQ(callF(pair, yes), 2);
    EXPECT_EQ(errorOf([&] { callF(x); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(errorOf([&] { callF(x, yes); }), "VELMARA:dispatch:noMatch");
    expectMessage([&] { callF(pair); }, {"VELMARA:dispatch:noMatch: ", "f(a: A): a: needs one object, not 1-by-2"});
    hvm().deleteObjects(a.get());
    EXPECT_EQ(errorOf([&] { callF(a); }), "VELMARA:object:invalid");
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
    using Case = std::pair<char const*, char const*>;
    for (auto const& [name, error] :
         {Case{"hidden", "member:access"}, Case{"mixed", "dispatch:noMatch"}, Case{"abstract", "member:abstract"},
          Case{"missing", "member:unknown"}, Case{"lies", "result:type"}, Case{"liesMore", "result:type"}})
        EXPECT_EQ(errorOf([&, name = name] { hvm().call(m.get(), name); }), std::string("VELMARA:") + error) << name;
    EXPECT_EQ(scalar<double>(hvm().call(m.get(), "mixed", inputs(one))), 2);
    EXPECT_EQ(scalar<double>(hvm().call(m.get(), "static", inputs(one))), 3);
    EXPECT_EQ(errorOf([&] { hvm().callStatic("M", "member"); }), "VELMARA:member:notStatic");
    EXPECT_EQ(hvm().call(m.get(), "nothing"), nullptr);
    EXPECT_EQ(errorOf([&] { hvm().call(one.get(), "member"); }), "VELMARA:object:notObject");
    ArrayPtr const none(orbis::omCreateORBISMatrix(0, 0, "M"));
    EXPECT_EQ(scalar<double>(hvm().call(none.get(), "member")), 4) << "the method itself decides about a null object";
}
