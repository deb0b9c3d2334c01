#include "HvmTest.hpp"
#include "library/Tally.hpp"

#include "orbis/factory/describeFunctions.hpp"

using namespace orbis;
using namespace orbis::factory;

namespace {

using PackagesTest = HvmTest;

std::function<void(COSPackage*)> adds(char const* function, int& runs)
{
    return [function, &runs](COSPackage* package) {
        ++runs;
        publish(package, describeFunctions().function(function, [] {}));
    };
}

TEST_F(PackagesTest, InitializersRunAtOnceOnlyForPackagesThatExist)
{
    int first = 0, second = 0, parent = 0;
    EXPECT_EQ(registerOrbisPackage("", adds("f", first)), nullptr);

    COSPackage* const inner = registerOrbisPackage("outer.middle.inner", adds("first", first));
    ASSERT_NE(inner, nullptr);
    EXPECT_EQ(first, 0);
    COSPackage* const middle = registerOrbisPackage("outer.middle", adds("parent", parent));
    EXPECT_EQ(middle, COSPackage::getPackage(COSNameID("outer.middle")));
    EXPECT_EQ(parent, 1);
    EXPECT_EQ(registerOrbisPackage("outer.middle.inner", adds("second", second)), inner);
    EXPECT_EQ(second, 1);

    EXPECT_EQ(hvm().describePackage("outer.middle.inner").functions.size(), 2u);
    EXPECT_EQ(hvm().describePackage("outer.middle").functions.size(), 1u);
    hvm().describePackage("outer.middle.inner");
    EXPECT_EQ(first + second + parent, 3);
    EXPECT_THROW(registerOrbisPackage("outer.middle", {}), std::bad_function_call);
    EXPECT_EQ(hvm().describePackage("").packages, std::vector<std::string>{"outer"});
}

TEST_F(PackagesTest, AFailingInitializerIsTriedAgain)
{
    int runs = 0;
    registerOrbisPackage("flaky", [&](COSPackage* package) {
        publish(package, describeFunctions().function("f", [] {}));
        if (++runs == 1)
            throw std::runtime_error("not yet");
    });
    EXPECT_NE(errorOf([&] { hvm().describePackage("flaky"); }), "");
    EXPECT_EQ(hvm().describePackage("flaky").functions.size(), 1u);
    EXPECT_EQ(runs, 2);
}

TEST_F(PackagesTest, RemovingAPackageOrTheVirtualMachineEndsItsObjects)
{
    for (bool const isEnd : {false, true}) {
        TallyInfo::publishIn("tests");
        auto const object = hvm().construct("tests.Tally");
        EXPECT_EQ(Tally::alive, 1);
        isEnd ? endHvm() : COSPackage::removePackage("tests");
        EXPECT_EQ(Tally::alive, 0);
        EXPECT_FALSE(velmara::isValid(object.get()));
        if (!isEnd) {
            EXPECT_NE(errorOf([&] { hvm().call(object.get(), "value"); }), "");
        }
    }
}

TEST_F(PackagesTest, OfTheTwoEndsOfAnObjectEitherMayComeFirst)
{
    TallyInfo::publishIn("tests");
    auto hostFirst = hvm().construct("tests.Tally");
    hostFirst.reset();
    EXPECT_EQ(Tally::alive, 0);

    auto const nativeFirst = hvm().construct("tests.Tally");
    auto* const native = static_cast<Tally*>(
        static_cast<COSInterface*>(orbis::omGetArrayElement(nativeFirst.get(), 0))->getNativeObject("tests.Tally"));
    EXPECT_TRUE(basic::BindingRegistry::retract(native));
    delete native;
    EXPECT_FALSE(velmara::isValid(nativeFirst.get()));

    // A binding that was released leaves its native object to its releaser.
    auto released = hvm().construct("tests.Tally");
    auto* const freed = static_cast<Tally*>(
        static_cast<COSInterface*>(orbis::omGetArrayElement(released.get(), 0))->getNativeObject("tests.Tally"));
    EXPECT_TRUE(basic::BindingRegistry::release(freed));
    released.reset();
    EXPECT_EQ(Tally::alive, 1);
    delete freed;
}

} // namespace
