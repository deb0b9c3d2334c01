#include "HvmTest.hpp"
#include "library/Tally.hpp"
#include "library/texts.hpp"

#include "orbis/factory/HvArrayPolicy.hpp"
#include "orbis/factory/HvArrayReferenceCountedPolicy.hpp"
#include "orbis/factory/describeFunctions.hpp"

#include "orbis/objectArrays.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

hvArrayReferenceCountedProxy kept;

class ArrayProxyTest : public HvmTest {
protected:
    ArrayProxyTest()
    {
        TallyInfo::publishIn("tests");
        registerOrbisPackage("tests.arrays", [](COSPackage* package) {
            publish(package,
                    describeFunctions()
                        .function("size", [](hvArrayProxy array) { return int(array()->get_number_of_elements()); })
                        .function("sizeOfConst",
                                  [](hvConstArrayProxy const& array) { return int(array()->get_number_of_elements()); })
                        .function("make", [] { return hvArrayProxy(hvCreateString("made")); })
                        .function("none", [] { return hvArrayProxy(nullptr); })
                        .function("swap", [](hvArrayReferenceCountedProxy array) {
                            std::swap(kept, array);
                            return array;
                        }));
        });
    }

    ~ArrayProxyTest() override { kept = {}; }

    ArrayPtr call(std::string const& function, std::vector<hvArray*> const& inputs = {})
    {
        return hvm().callFunction("tests.arrays." + function, inputs);
    }
};

TEST_F(ArrayProxyTest, ConvertToTheOneObjectOnly)
{
    ArrayPtr const tally = hvm().construct("tests.Tally");
    ArrayPtr const pair(omCreateORBISMatrix(1, 2, "tests.Tally"));
    omSetArrayElement(pair.get(), 0, omGetArrayElement(tally.get(), 0));
    ArrayPtr const empty(omCreateORBISMatrix(0, 0, "tests.Tally"));
    ArrayPtr const one = number(1);
    COSInterface* const expected = omGetArrayElement(tally.get(), 0);
    std::pair<hvArray*, COSInterface*> const cases[] = {{tally.get(), expected},
                                                        {pair.get(), nullptr},
                                                        {empty.get(), nullptr},
                                                        {one.get(), nullptr},
                                                        {nullptr, nullptr}};
    for (auto const& [array, found] : cases) {
        COSInterfacePtr const object = hvArrayProxy(array), sameObject = hvConstArrayProxy(array);
        EXPECT_EQ(static_cast<COSInterface*>(object), found);
        EXPECT_EQ(static_cast<COSInterface*>(sameObject), found);
    }

    EXPECT_EQ(hvArrayProxy(COSInterfacePtr())(), nullptr);
    EXPECT_EQ(hvConstArrayProxy(COSInterfacePtr())(), nullptr);
    COSInterfacePtr const handle(expected);
    ArrayPtr const made(hvArrayProxy{handle}());
    EXPECT_TRUE(velmara::isSameObject(made.get(), tally.get()));
    ArrayPtr const madeConst(const_cast<hvArray*>(hvConstArrayProxy{handle}()));
    EXPECT_TRUE(velmara::isSameObject(madeConst.get(), tally.get()));
}

TEST_F(ArrayProxyTest, CountedProxiesHoldOneReferenceEach)
{
    auto const arrays = [before = velmara::liveCounts().arrays] { return velmara::liveCounts().arrays - before; };
    using Proxy = hvArrayReferenceCountedProxy;
    ArrayPtr array = number(1);
    auto first = std::make_unique<Proxy>(array.get());
    array.reset();
    EXPECT_EQ(arrays(), 1) << "the proxy holds it";
    Proxy second(*first);
    EXPECT_TRUE(second == *first && !(second == Proxy()));
    first.reset();
    EXPECT_EQ(arrays(), 1);
    second = *&second;
    second = Proxy(second);
    EXPECT_EQ(scalar<double>(ArrayPtr(hvCreateSharedDataCopy(second()))), 1.0);
    ArrayPtr other = number(2);
    second = Proxy(other.get());
    EXPECT_EQ(arrays(), 1) << "only the other one is left";
    other.reset();
    EXPECT_EQ(arrays(), 1);
    second = Proxy();
    EXPECT_EQ(arrays(), 0);
    EXPECT_TRUE(second == Proxy() && second() == nullptr);
}

TEST_F(ArrayProxyTest, NativeFunctionsTakeAndGiveArrays)
{
    for (auto const& array : {texts::characters(u"ab"), texts::numbers(2), texts::cells({nullptr, nullptr})}) {
        EXPECT_EQ(scalar<std::int32_t>(call("size", {array.get()})), 2);
        EXPECT_EQ(scalar<std::int32_t>(call("sizeOfConst", {array.get()})), 2);
        EXPECT_EQ(call("swap", {array.get()}), nullptr);
        EXPECT_EQ(kept(), array.get());
        EXPECT_EQ(call("swap", {array.get()}).get(), array.get()) << "the very array, with a reference of its own";
        kept = {};
    }
    EXPECT_EQ(texts::textOf(call("make").get()), u"made");
    EXPECT_EQ(call("none"), nullptr);
    EXPECT_EQ(hvm().describeFunction("tests.arrays.swap").inputs.at(0).dataType, "any");
    EXPECT_EQ(hvm().describeFunction("tests.arrays.sizeOfConst").inputs.at(0).dataType, "any");
}

} // namespace
