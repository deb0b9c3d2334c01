#include "HvmTest.hpp"
#include "library/Tally.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"
#include "orbis/factory/withDefaults.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

/// Publishes the shapes that a description can have, all with defaults.
class Scale {
public:
    explicit Scale(std::int32_t factor = 0, std::int32_t offset = 0) : factor_(factor), offset_(offset) {}
    virtual ~Scale() = default;
    Scale(Scale const&) = default;
    Scale& operator=(Scale const&) = default;

    std::int32_t apply(std::int32_t x, std::int32_t times) const { return x * factor_ * times + offset_; }
    std::int32_t set(std::int32_t factor, std::string const& note, Tally const* tally)
    {
        factor_ = factor;
        return static_cast<std::int32_t>(note.size()) + (tally ? tally->value() : 0);
    }

private:
    std::int32_t factor_;
    std::int32_t offset_;
};

/// Its native object exists before a constructor is called.
struct Early : Scale {
    using Scale::Scale;
};

std::int32_t digits(std::int32_t a, std::int64_t b, std::int8_t c)
{
    return a * 100 + static_cast<std::int32_t>(b) * 10 + c;
}

} // namespace

PUBLISHED_IN_TESTS(Scale)
PUBLISHED_IN_TESTS(Early)

namespace {

void describeScale(ClassDescriber<Scale>& c)
{
    std::string const note = "a text that the description copies";
    c.constructor<std::int32_t, std::int32_t>("factor, offset", withDefaults(2, 1))
        .method("apply", &Scale::apply, "x, times", withDefaults(3), MethodAttributes::Sealed())
        .method("set", &Scale::set, "factor, note, tally", withDefaults(7, note, nullptr))
        .method(
            "forced", [](Scale* scale, std::int32_t x) { return scale->apply(x, 1); }, "scale, x", withDefaults(5))
        .staticMethod("digits", &digits, "a, b, c", withDefaults(1, 2, 3));
}

class EarlyInfo final : public HandleClassInfo<Early, 1> {
public:
    EarlyInfo() : HandleClassInfo("tests.Early", "") {}
    void* createInstanceData() override { return new Early(100, 100); }
    void initializeClass(COSClass* cls) override
    {
        publish(cls, describe<Early>()
                         .constructor<std::int32_t, std::int32_t>("factor, offset", withDefaults(2, 1))
                         .method("apply", &Early::apply));
    }
};

class DefaultsTest : public HvmTest {
protected:
    DefaultsTest()
    {
        TallyInfo::publishIn("tests");
        registerOrbisPackage("tests", [](COSPackage* package) {
            package->addClass(new Described<Scale>(&describeScale));
            package->addClass(new EarlyInfo);
            publish(package, describeFunctions()
                                 .function("digits", &digits, "a, b, c", withDefaults(4, 5))
                                 .function(
                                     "greet", [](std::string_view name, double) { return name; }, "name, volume",
                                     withDefaults("you", 1)));
        });
    }

    template <class... N>
    std::int32_t call(ArrayPtr const& object, char const* method, N... numbers)
    {
        return scalar<std::int32_t>(hvm().call(object.get(), method, inputs(number(numbers)...)));
    }
    template <class... N>
    ArrayPtr make(char const* className, N... numbers)
    {
        return hvm().construct(className, inputs(number(numbers)...));
    }
};

} // namespace

TEST_F(DefaultsTest, OmittedInputsHaveTheirDefaults)
{
    ArrayPtr const object = make("tests.Scale");
    EXPECT_EQ(call(object, "apply", 10), 61);
    EXPECT_EQ(call(object, "apply", 10, 1), 21);
    EXPECT_EQ(call(object, "forced"), 11);
    EXPECT_EQ(call(object, "forced", 4), 9);
    EXPECT_EQ(call(object, "set"), 34);
    EXPECT_EQ(call(object, "apply", 1, 1), 8);
    EXPECT_EQ(call(object, "set", 9), 34);
    EXPECT_EQ(call(object, "apply", 1, 1), 10);
    EXPECT_EQ(call(make("tests.Scale", 3), "apply", 1, 1), 4);
    EXPECT_EQ(call(make("tests.Scale", 3, 0), "apply", 1, 1), 3);
    EXPECT_EQ(errorOf([&] { call(object, "apply"); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(errorOf([&] { call(object, "apply", 1, 2, 3); }), "VELMARA:dispatch:noMatch");
}

TEST_F(DefaultsTest, StaticMethodsAndFunctionsHaveThemToo)
{
    ArrayPtr const nine = number(9), eight = number(8), seven = number(7);
    std::array const all = inputs(nine, eight, seven);
    constexpr std::int32_t ofMethod[] = {123, 923, 983, 987}, ofFunction[] = {0, 945, 985, 987};
    for (std::size_t count = 0; count <= 3; ++count) {
        auto const given = std::span(all).first(count);
        EXPECT_EQ(scalar<std::int32_t>(hvm().callStatic("tests.Scale", "digits", given)), ofMethod[count]);
        std::int32_t digits = 0;
        auto const function = [&] { digits = scalar<std::int32_t>(hvm().callFunction("tests.digits", given)); };
        EXPECT_EQ(errorOf(function), count == 0 ? "VELMARA:dispatch:noMatch" : "");
        EXPECT_EQ(digits, ofFunction[count]);
    }
    EXPECT_EQ(hvm().callFunction("tests.greet")->get_number_of_elements(), 3u);
}

TEST_F(DefaultsTest, AnExistingObjectTakesTheValue)
{
    EXPECT_EQ(call(make("tests.Early"), "apply", 1, 1), 3);
    EXPECT_EQ(call(make("tests.Early", 5), "apply", 1, 1), 6);
}

TEST_F(DefaultsTest, ShorterSignaturesAreListed)
{
    std::string const methods = methodsOf("tests.Scale");
    for (char const* const expected :
         {": result = Scale() ", "(factor: int32 scalar) ",
          ": sealed result = apply(this: tests.Scale, x: int32 scalar) ",
          ": sealed result = apply(this: tests.Scale, x: int32 scalar, times: int32 scalar) ",
          ": result = set(this: tests.Scale) ", ": result = forced(scale: tests.Scale) "})
        EXPECT_NE(methods.find(expected), std::string::npos) << expected << " in\n" << methods;
}

TEST_F(DefaultsTest, AShorterSignatureMustBeNew)
{
    COSPackage* const package = COSPackage::getPackage("tests");
    auto const twice = describeFunctions()
                           .function("twice", [](double) {})
                           .function(
                               "twice", [](double, double) {}, "a, b", withDefaults(1));
    EXPECT_THROW(publish(package, twice), std::exception);
}
