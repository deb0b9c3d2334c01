#include "library/FunctionsTest.hpp"
#include "library/Tally.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/types/NumericVectorPolicy.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"

#include "libhv/libhv.hpp"
#include "orbis/COSDataType.hpp"
#include "orbis/COSDataTypePtr.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

class Settings {
public:
    virtual ~Settings() = default;
    std::optional<double> limit() const { return limit_; }
    void setLimit(std::optional<double> limit) { limit_ = limit; }
    std::optional<Tally*> rival;

private:
    std::optional<double> limit_;
};

} // namespace

PUBLISHED_IN_TESTS(Settings)

namespace {

std::optional<std::int32_t> halved(std::optional<std::int32_t> number)
{
    return number && *number % 2 == 0 ? std::optional(*number / 2) : std::nullopt;
}

using Numbers = std::vector<double>;

class OptionalTest : public FunctionsTest {
protected:
    OptionalTest()
    {
        TallyInfo::publishIn("tests");
        publishClass<Settings>([](auto& c) {
            c.constructor()
                .property("limit", &Settings::limit, &Settings::setLimit)
                .property("rival", &Settings::rival);
        });
        publishFunctions(describeFunctions()
                             .function("halved", &halved)
                             .function(
                                 "numbers", +[](std::optional<Numbers> const& given) { return given; })
                             .function(
                                 "tally", +[](std::optional<Tally*> given) { return given.has_value(); })
                             .function(
                                 "choice", +[](std::optional<bool>) { return 1; })
                             .function(
                                 "choice", +[](std::int8_t) { return 2; }));
    }

    static ArrayPtr matrix(std::size_t rows, std::size_t columns, hvClassID classID = hvDOUBLE_CLASS)
    {
        return ArrayPtr(host_extensions::createMatrix(rows, columns, classID));
    }

    static bool isNothing(ArrayPtr const& array)
    {
        auto const* const dimensions = array->get_dimensions();
        return array->_get_class_id_non_trivial() == hvDOUBLE_CLASS && dimensions[0] == 0 && dimensions[1] == 0;
    }
};

} // namespace

TEST_F(OptionalTest, NoValueIsAnEmptyArrayAndValuesCrossAsAlways)
{
    EXPECT_EQ(scalar<std::int32_t>(call("halved", number(8))), 4);
    EXPECT_TRUE(isNothing(call("halved", number(7))));
    EXPECT_TRUE(isNothing(call("halved", matrix(0, 0))));
    EXPECT_TRUE(isNothing(call("halved", ArrayPtr(host_extensions::createStringMatrix(1, 1))))) << "a missing string";
    EXPECT_EQ(call("numbers", matrix(2, 2))->get_number_of_elements(), 4u);
    EXPECT_EQ(call("numbers", matrix(1, 0))->get_dimensions()[0], 1u) << "a row without elements is a value";
    EXPECT_TRUE(isNothing(call("numbers", matrix(0, 0))));
    ArrayPtr const tally = hvm().construct("tests.Tally");
    EXPECT_TRUE(scalar<bool>(call("tally", tally)));
    EXPECT_FALSE(scalar<bool>(call("tally", matrix(0, 0))));
    EXPECT_EQ(hvm().describeFunction("tests.halved").inputs.at(0).dataType, "int32 scalar or empty");
}

TEST_F(OptionalTest, WhatTheValueWouldRefuseIsRefused)
{
    for (ArrayPtr const& input : {number(1.5), matrix(1, 0), matrix(0, 0, hvINT32_CLASS), matrix(0, 0, hvCHAR_CLASS)})
        EXPECT_EQ(errorOf([&] { call("halved", input); }), "VELMARA:dispatch:noMatch");
    expectMessage([&] { call("halved", number(1.5)); }, {"1.5 is no whole number"});
    ArrayPtr const yes = matrix(1, 1, hvLOGICAL_CLASS);
    EXPECT_EQ(scalar<std::int32_t>(call("choice", yes)), 1);
    EXPECT_EQ(scalar<std::int32_t>(call("choice", number(5))), 2);
    EXPECT_EQ(scalar<std::int32_t>(call("choice", matrix(0, 0))), 1);
}

TEST_F(OptionalTest, PropertiesCanBeEmpty)
{
    ArrayPtr const settings = hvm().construct("tests.Settings");
    EXPECT_TRUE(isNothing(hvm().get(settings.get(), "limit")));
    hvm().set(settings.get(), "limit", number(2).get());
    EXPECT_EQ(scalar<double>(hvm().get(settings.get(), "limit")), 2.0);
    hvm().set(settings.get(), "limit", matrix(0, 0).get());
    EXPECT_TRUE(isNothing(hvm().get(settings.get(), "limit")));
    EXPECT_EQ(errorOf([&] { hvm().set(settings.get(), "limit", matrix(2, 2).get()); }), "VELMARA:property:value");

    EXPECT_TRUE(hvm().references(settings.get()).empty());
    ArrayPtr const rival = hvm().construct("tests.Tally");
    hvm().set(settings.get(), "rival", rival.get());
    EXPECT_TRUE(velmara::isSameObject(hvm().references(settings.get()).at(0).object.get(), rival.get()));
}

TEST_F(OptionalTest, TheDataTypeTreatsEmptySlotsAsValues)
{
    COSDataTypePtr const type("int32 scalar or empty");
    ASSERT_TRUE(type);
    COSValue const none, three(std::int32_t(3)), four(std::int32_t(4));
    EXPECT_TRUE(type->isEqualValue(none, type->copyValue(none)));
    EXPECT_FALSE(type->isEqualValue(none, three));
    EXPECT_EQ(type->compareValues(three, four), 0xFFFFFFFFu);
    EXPECT_EQ(type->valueByteSize(none) + type->valueByteSize(three), 4u);
    type->releaseValue(none);
    EXPECT_FALSE(COSDataTypePtr("tests.Nobody or empty"));
    EXPECT_TRUE(COSDataTypePtr("tests.Tally or empty")->canContainInterfaces());
    EXPECT_FALSE(COSDataTypePtr("double vector")->canContainInterfaces());
}
