#include "library/FunctionsTest.hpp"

#include "orbis/factory/types/NumericSpanPolicy.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"

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

template <int Number, class... A>
int answer(A...)
{
    return Number;
}

using Integers = std::vector<std::int32_t>;
using Reals = std::vector<double>;

class NumericVectorTest : public FunctionsTest {
protected:
    NumericVectorTest()
    {
        publishFunctions(describeFunctions()
                             .function("sum", &sum)
                             .function(
                                 "tail", +[](std::span<std::int16_t const> values) { return values.last(1); })
                             .function("real", &answer<1, double>)
                             .function("real", &answer<2, Reals>)
                             .function("integer", &answer<1, std::int32_t>)
                             .function("integer", &answer<2, Integers>)
                             .function("both", &answer<1, Integers>)
                             .function("both", &answer<2, Reals>));
    }

    template <class T>
    void publishReversed(char const* name)
    {
        publishFunctions(describeFunctions().function(name, &reversed<T>));
    }

    template <class T>
    void expectExtremesToCross(T)
    {
        std::string const name = velmara::className(matrix<T>(1, 1, {T()}).get()), dataType = name + " vector";
        using Limits = std::numeric_limits<T>;
        publishReversed<T>(name.c_str());
        auto const record = hvm().describeFunction("tests." + name);
        EXPECT_EQ(record.inputs.at(0).dataType, dataType);
        EXPECT_EQ(record.outputs.at(0).dataType, dataType);
        for (auto const& values :
             {std::vector<T>{Limits::lowest(), Limits::max(), Limits::min(), T(1), T(0), Limits::quiet_NaN()},
              std::vector<T>{}, std::vector<T>{T(7)}}) {
            std::size_t const rows = values.size() % 2 == 0 ? 2 : 1;
            ArrayPtr const result = call(name, matrix(rows, values.size() / rows, values));
            ASSERT_EQ(result->_get_class_id_non_trivial(), COSValue::classOf<T>());
            EXPECT_EQ(result->get_dimensions()[0], 1u);
            ASSERT_EQ(result->get_number_of_elements(), values.size());
            auto const* element = static_cast<T const*>(host_extensions::getData(result.get()));
            for (T const expected : reversed(values)) {
                EXPECT_TRUE(*element == expected || expected != expected) << dataType;
                ++element;
            }
        }
    }
};

} // namespace

TEST_F(NumericVectorTest, EveryClassCrossesBothWays)
{
    std::tuple<double, float, std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, std::int32_t, std::uint32_t,
               std::int64_t, std::uint64_t, bool> const each;
    std::apply([this](auto... values) { (expectExtremesToCross(values), ...); }, each);
}

TEST_F(NumericVectorTest, OtherNumbersAreConvertedOrRefusedWithTheirPosition)
{
    publishReversed<std::int32_t>("int32");
    publishReversed<float>("single");
    publishReversed<bool>("logical");
    std::tuple<char const*, ArrayPtr, char const*> const cases[] = {
        // with no reason where the array fits
        {"int32", matrix<double>(2, 2, {1, -2, 3, 4}), nullptr},
        {"int32", matrix<double>(0, 0, {}), nullptr},
        {"int32", matrix<std::uint64_t>(1, 1, {7}), nullptr},
        {"logical", matrix<double>(1, 2, {0, 1}), nullptr},
        {"int32", matrix<double>(1, 3, {1, 2, 2.5}), "element 2 (counted from 0): 2.5 is no whole number"},
        {"int32", matrix<double>(1, 2, {1, 3e9}), "element 1 (counted from 0): 3e+09 is not in the range"},
        {"int32", matrix<double>(1, 1, {std::numeric_limits<double>::quiet_NaN()}), "element 0 (counted from 0): NaN"},
        {"int32", matrix<std::int64_t>(1, 2, {0, 1LL << 40}), "element 1 (counted from 0): 1099511627776"},
        {"int32", matrix<bool>(1, 1, {true}), "needs numbers, not logical"},
        {"int32", ArrayPtr(hvCreateString("12")), "needs numbers, not char"},
        {"int32", ArrayPtr(hvCreateCellMatrix(1, 1)), "needs numbers, not cell"},
        {"logical", matrix<double>(1, 2, {0, 2}), "element 1 (counted from 0): needs true"},
        {"single", matrix<double>(1, 2, {0, 1e300}), "element 1"},
    };
    for (auto const& [function, array, reason] : cases) {
        auto const action = [&, name = function, &given = array] {
            EXPECT_EQ(call(name, given)->get_number_of_elements(), given->get_number_of_elements());
        };
        if (reason)
            expectMessage(action, {reason});
        else
            EXPECT_EQ(errorOf(action), "");
    }
    ArrayPtr const result = call("int32", std::get<1>(cases[0]));
    EXPECT_EQ(static_cast<std::int32_t const*>(host_extensions::getData(result.get()))[2], -2);
}

TEST_F(NumericVectorTest, NothingIsCopiedThatNeedNotBe)
{
    ArrayPtr const array = matrix<double>(2, 3, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(scalar<double>(call("sum", array)), 21.0);
    EXPECT_EQ(seen, host_extensions::getData(array.get()));
    EXPECT_EQ(scalar<double>(call("sum", matrix<std::int8_t>(1, 2, {-1, 3}))), 2.0);
    EXPECT_EQ(scalar<std::int16_t>(call("tail", matrix<std::int16_t>(2, 1, {5, 6}))), 6);
    EXPECT_TRUE(detail::elementsOf<double>(nullptr).empty());
    EXPECT_THROW(detail::elementsOf<float>(array.get()), std::invalid_argument) << "which the host never does";

    COSValue const slot(array.get());
    detail::ArgumentsOf<Reals> argument(&slot);
    void const* held = nullptr;
    argument.apply([&](Reals const& values) { held = values.data(); });
    argument.apply([&](Reals values) { seen = values.data(); });
    EXPECT_EQ(seen, held) << "a parameter by value is given the converted vector itself";
}

TEST_F(NumericVectorTest, OneElementFitsAScalarBetter)
{
    ArrayPtr const one = number(1), two = matrix<double>(1, 2, {1, 2});
    for (char const* const function : {"real", "integer"}) {
        EXPECT_EQ(scalar<std::int32_t>(call(function, one)), 1);
        EXPECT_EQ(scalar<std::int32_t>(call(function, two)), 2);
    }
    EXPECT_EQ(scalar<std::int32_t>(call("both", two)), 2);
}
