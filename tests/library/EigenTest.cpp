#include "library/FunctionsTest.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/types/eigen.hpp"

#include <Eigen/Dense>

#include <limits>

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

void const* seen = nullptr;

/// Its elements in the order of its rows tell whether the shape was kept; `seen` whether it was copied.
template <class M>
Eigen::RowVectorXd byRows(M matrix)
{
    seen = matrix.data();
    Eigen::RowVectorXd elements(matrix.size());
    for (Eigen::Index i = 0; i < matrix.size(); ++i)
        elements(i) = static_cast<double>(matrix(i / matrix.cols(), i % matrix.cols()));
    return elements;
}

double lastOf(MatrixView<double> view)
{
    seen = view.data;
    return view.size() ? view(view.rows - 1, view.columns - 1) : -1;
}

template <class M>
M transposed(M matrix)
{
    return matrix.transpose().eval();
}

Matrix<float> twice(Matrix<float> const& matrix)
{
    Matrix<float> result(matrix);
    for (std::size_t i = 0; i < result.view().size(); ++i)
        result.data()[i] *= 2;
    result = Matrix<float>(std::move(result));
    return result;
}

class EigenTest : public FunctionsTest {
protected:
    EigenTest()
    {
        publishFunctions(describeFunctions()
                             .function("dynamic", &byRows<Eigen::MatrixXd>)
                             .function("rowMajor", &byRows<RowMajor>)
                             .function("fixed", &byRows<Eigen::Matrix<std::int32_t, 2, 3>>)
                             .function("vector", &byRows<Eigen::Vector3d>)
                             .function("row", &byRows<Eigen::RowVectorXf>)
                             .function("array", &byRows<Eigen::ArrayXXd>)
                             .function("map", &byRows<Eigen::Map<Eigen::MatrixXd const>>)
                             .function("ref", &byRows<Eigen::Ref<Eigen::MatrixXd const>>)
                             .function("rowMajorRef", &byRows<Eigen::Ref<RowMajor const>>)
                             .function("transposed", &transposed<Eigen::MatrixXd>)
                             .function("transposedRows", &transposed<RowMajor>)
                             .function("lastOf", &lastOf)
                             .function("twice", &twice));
    }

    static std::vector<double> elements(ArrayPtr const& array)
    {
        auto const* const data = static_cast<double const*>(host_extensions::getData(array.get()));
        return {data, data + array->get_number_of_elements()};
    }
};

} // namespace

TEST_F(EigenTest, MatricesKeepTheirShape)
{
    ArrayPtr const given = matrix<double>(2, 3, {1, 4, 2, 5, 3, 6}), none = matrix<double>(0, 0, {});
    void const* const data = host_extensions::getData(given.get());
    for (auto const& [function, isCopied] :
         std::initializer_list<std::pair<char const*, bool>>{{"dynamic", true},
                                                             {"rowMajor", true},
                                                             {"fixed", true},
                                                             {"array", true},
                                                             {"map", false},
                                                             {"ref", false},
                                                             {"rowMajorRef", true}}) {
        SCOPED_TRACE(function);
        EXPECT_EQ(elements(call(function, given)), (std::vector<double>{1, 2, 3, 4, 5, 6}));
        EXPECT_EQ(seen != data, isCopied);
        if (std::string_view(function) != "fixed") {
            EXPECT_TRUE(elements(call(function, none)).empty());
        }
    }
    for (char const* const function : {"transposed", "transposedRows"}) {
        ArrayPtr const result = call(function, given);
        EXPECT_EQ(result->get_dimensions()[0], 3u);
        EXPECT_EQ(elements(result), (std::vector<double>{1, 2, 3, 4, 5, 6})) << "column by column";
        EXPECT_EQ(call(function, matrix<double>(0, 4, {}))->get_dimensions()[0], 4u);
    }
    for (ArrayPtr const& vector : {matrix<double>(1, 3, {7, 8, 9}), matrix<double>(3, 1, {7, 8, 9})})
        for (char const* const function : {"vector", "row"})
            EXPECT_EQ(elements(call(function, vector)), (std::vector<double>{7, 8, 9}));
    EXPECT_TRUE(elements(call("row", none)).empty());
    EXPECT_EQ(hvm().describeFunction("tests.fixed").signature, "result = fixed(p0: int32 vector) -> double vector");

    EXPECT_EQ(scalar<double>(call("lastOf", given)), 6);
    EXPECT_EQ(seen, data) << "a view is no copy";
    EXPECT_EQ(scalar<double>(call("lastOf", none)), -1);
    ArrayPtr const doubled = call("twice", given);
    EXPECT_EQ(doubled->get_dimensions()[0], 2u);
    EXPECT_EQ(static_cast<float const*>(host_extensions::getData(doubled.get()))[1], 8);
    EXPECT_THROW(Matrix<double>(std::numeric_limits<std::size_t>::max(), 2), std::bad_alloc);
}

TEST_F(EigenTest, OtherSizesAndOtherThingsAreRefused)
{
    expectMessage(
        [&] {
            call("fixed", matrix<double>(3, 2, {1, 2, 3, 4, 5, 6}));
        },
        {"not_convertible", "input \"p0\": needs a matrix of 2-by-3, not of 3-by-2"});
    expectMessage([&] { call("vector", matrix<double>(2, 2, {1, 2, 3, 4})); }, {"of 3-by-1, not of 2-by-2"});
    expectMessage([&] { call("vector", matrix<double>(1, 4, {1, 2, 3, 4})); }, {"of 3-by-1, not of 4-by-1"});
    expectMessage([&] { call("row", matrix<double>(2, 2, {1, 2, 3, 4})); }, {"of 1-by-n, not of 2-by-2"});
    expectMessage([&] { call("fixed", matrix<double>(2, 3, {1, 2, 3, 4, 5.5, 6})); }, {"element 4", "5.5"});
    expectMessage([&] { call("map", ArrayPtr(hvCreateString("x"))); }, {"needs numbers, not char"});
}
