#include "HvmTest.hpp"

#include "orbis/factory/NumericSpanPolicy.hpp"
#include "orbis/factory/NumericVectorPolicy.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include <cmath>
#include <limits>
#include <numeric>

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

template <class T>
std::vector<T> reversed(std::vector<T> values)
{
    return {values.rbegin(), values.rend()};
}

void const* seen = nullptr;

double sum(std::span<double const> values)
{
    seen = values.data();
    return std::accumulate(values.begin(), values.end(), 0.0);
}

class NumericVectorTest : public HvmTest {
protected:
    template <class T>
    static ArrayPtr matrix(std::size_t rows, std::size_t columns, std::vector<T> const& values)
    {
        ArrayPtr array(additions::createMatrix(rows, columns, COSValue::classOf<T>()));
        std::copy(values.begin(), values.end(), static_cast<T*>(additions::getWritableData(array.get())));
        return array;
    }

    template <class F>
    void publishFunction(F function)
    {
        registerOrbisPackage("vectors" + std::to_string(++packages_), [function](COSPackage* package) {
            publish(package, describeFunctions().function("f", function, "values"));
        });
    }

    ArrayPtr call(ArrayPtr const& array)
    {
        hvArray* const inputs[] = {array.get()};
        return hvm().callFunction("vectors" + std::to_string(packages_) + ".f", inputs);
    }

    std::string refusal(ArrayPtr const& array)
    {
        try {
            call(array);
        } catch (velmara::Error const& error) {
            return error.text();
        }
        return "none";
    }

    template <class T>
    void expectRoundTrip(std::vector<T> const& values, char const* dataType)
    {
        publishFunction(&reversed<T>);
        std::size_t const rows = values.size() % 2 == 0 ? 2 : 1;
        ArrayPtr const result = call(matrix(rows, values.size() / rows, values));
        ASSERT_EQ(result->_get_class_id_non_trivial(), COSValue::classOf<T>());
        EXPECT_EQ(result->get_dimensions()[0], 1u);
        ASSERT_EQ(result->get_number_of_elements(), values.size());
        std::vector<T> expected(values.rbegin(), values.rend());
        auto const* const elements = static_cast<T const*>(additions::getData(result.get()));
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_TRUE(elements[i] == expected[i] || expected[i] != expected[i]) << dataType << " " << i;
        auto const record = hvm().describeFunction("vectors" + std::to_string(packages_) + ".f");
        EXPECT_EQ(record.inputs.at(0).dataType, dataType);
        EXPECT_EQ(record.outputs.at(0).dataType, dataType);
    }

    template <class T>
    void expectExtremesToCross(char const* dataType)
    {
        using Limits = std::numeric_limits<T>;
        expectRoundTrip<T>({Limits::lowest(), Limits::max(), Limits::min(), T(1), T(0), Limits::quiet_NaN()}, dataType);
        expectRoundTrip<T>({}, dataType);
        expectRoundTrip<T>({T(7)}, dataType);
    }

private:
    int packages_ = 0;
};

} // namespace

TEST_F(NumericVectorTest, EveryClassCrossesBothWays)
{
    expectExtremesToCross<double>("double vector");
    expectExtremesToCross<float>("single vector");
    expectExtremesToCross<std::int8_t>("int8 vector");
    expectExtremesToCross<std::uint8_t>("uint8 vector");
    expectExtremesToCross<std::int16_t>("int16 vector");
    expectExtremesToCross<std::uint16_t>("uint16 vector");
    expectExtremesToCross<std::int32_t>("int32 vector");
    expectExtremesToCross<std::uint32_t>("uint32 vector");
    expectExtremesToCross<std::int64_t>("int64 vector");
    expectExtremesToCross<std::uint64_t>("uint64 vector");
    expectExtremesToCross<bool>("logical vector");
}

TEST_F(NumericVectorTest, OtherNumbersAreConvertedOrRefusedWithTheirPosition)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    publishFunction(&reversed<std::int32_t>);
    ArrayPtr const result = call(matrix<double>(2, 2, {1, -2, 3, 4}));
    EXPECT_EQ(static_cast<std::int32_t const*>(additions::getData(result.get()))[2], -2);
    EXPECT_EQ(call(matrix<double>(0, 0, {}))->get_number_of_elements(), 0u);
    EXPECT_EQ(call(matrix<std::uint64_t>(1, 1, {7}))->get_number_of_elements(), 1u);
    struct Case {
        ArrayPtr array;
        char const* reason;
    };
    Case const cases[] = {{matrix<double>(1, 3, {1, 2, 2.5}), "element 2 (counted from 0): 2.5 is no whole number"},
                          {matrix<double>(1, 2, {1, 3e9}), "element 1 (counted from 0): 3e+09 is not in the range"},
                          {matrix<double>(1, 1, {nan}), "element 0 (counted from 0): NaN is not in the range"},
                          {matrix<std::int64_t>(1, 2, {0, 1LL << 40}), "element 1 (counted from 0): 1099511627776"},
                          {matrix<bool>(1, 1, {true}), "needs numbers, not logical"},
                          {ArrayPtr(hvCreateString("12")), "needs numbers, not char"},
                          {ArrayPtr(hvCreateCellMatrix(1, 1)), "needs numbers, not cell"}};
    for (auto const& [array, reason] : cases)
        EXPECT_NE(refusal(array).find(reason), std::string::npos) << refusal(array);

    publishFunction(&reversed<bool>);
    EXPECT_EQ(call(matrix<double>(1, 2, {0, 1}))->_get_class_id_non_trivial(), hvLOGICAL_CLASS);
    EXPECT_NE(refusal(matrix<double>(1, 2, {0, 2})).find("element 1 (counted from 0): needs true"), std::string::npos);
    publishFunction(&reversed<float>);
    EXPECT_NE(refusal(matrix<double>(1, 2, {0, 1e300})).find("element 1"), std::string::npos);
}

TEST_F(NumericVectorTest, ASpanSeesTheElementsWhereTheyAre)
{
    publishFunction(&sum);
    ArrayPtr const array = matrix<double>(2, 3, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(scalar<double>(call(array)), 21.0);
    EXPECT_EQ(seen, additions::getData(array.get()));
    EXPECT_EQ(scalar<double>(call(matrix<std::int8_t>(1, 2, {-1, 3}))), 2.0);
    publishFunction(+[](std::span<std::int16_t const> values) { return values.subspan(1); });
    EXPECT_EQ(scalar<std::int16_t>(call(matrix<std::int16_t>(2, 1, {5, 6}))), 6);
}

TEST_F(NumericVectorTest, AVectorIsCopiedOnceOnItsWayIn)
{
    ArrayPtr const array = matrix<double>(1, 3, {1, 2, 3});
    COSValue const slot(array.get());
    detail::ArgumentsOf<std::vector<double>> argument(&slot);
    void const* held = nullptr;
    argument.apply([&](std::vector<double> const& values) { held = values.data(); });
    argument.apply([&](std::vector<double> values) { seen = values.data(); });
    EXPECT_EQ(seen, held) << "a parameter by value is given the converted vector itself";
}

TEST_F(NumericVectorTest, OneElementFitsAScalarBetter)
{
    registerOrbisPackage("overloads", [](COSPackage* package) {
        publish(package, describeFunctions()
                             .function(
                                 "f", +[](double) { return 1; })
                             .function(
                                 "f", +[](std::vector<double>) { return 2; })
                             .function(
                                 "g", +[](std::int32_t) { return 1; })
                             .function(
                                 "g", +[](std::vector<std::int32_t>) { return 2; })
                             .function(
                                 "h", +[](std::vector<std::int32_t>) { return 1; })
                             .function(
                                 "h", +[](std::vector<double>) { return 2; }));
    });
    ArrayPtr const one = number(1), two = matrix<double>(1, 2, {1, 2});
    auto const choice = [&](char const* function, ArrayPtr const& array) {
        hvArray* const inputs[] = {array.get()};
        return scalar<std::int32_t>(hvm().callFunction(std::string("overloads.") + function, inputs));
    };
    for (char const* const function : {"f", "g"}) {
        EXPECT_EQ(choice(function, one), 1);
        EXPECT_EQ(choice(function, two), 2);
    }
    EXPECT_EQ(choice("h", two), 2);
}
