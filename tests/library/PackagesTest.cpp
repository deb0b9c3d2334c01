#include "HvmTest.hpp"

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

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

} // namespace
