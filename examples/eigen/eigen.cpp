#include <stdexcept>

// Eigen asserts what it requires. A script's mistake must be an error instead.
#define eigen_assert(condition) ((condition) ? void() : throw std::invalid_argument(#condition))
#include <Eigen/Dense>

#include "orbis/factory.hpp"
#include "orbis/factory/types/eigen.hpp"
#include "orbis/factory/types/pair.hpp"

using Matrix = Eigen::MatrixXd;
using Vector = Eigen::VectorXd;
using View = Eigen::Ref<Matrix const>; // of the elements that the script passes
using VectorView = Eigen::Ref<Vector const>;

/// What the decompositions have in common.
template <class D, class Describer>
Describer& describeSolver(Describer& solver)
{
    return solver.template constructor<View>("matrix")
        .method(
            "solve", [](D const* solver, VectorView right) -> Vector { return solver->solve(right); }, "this, right")
        .method("rank", &D::rank);
}

std::tuple<double, Eigen::Index, Eigen::Index> smallest(View matrix)
{
    Eigen::Index row = 0, column = 0;
    double const value = matrix.minCoeff(&row, &column);
    return {value, row + 1, column + 1};
}

template <class T>
void publishQuaternion(orbis::factory::Module& eigen, char const* name)
{
    using Quaternion = Eigen::Quaternion<T>;
    using Vector3 = Eigen::Matrix<T, 3, 1>;
    eigen.publish<Quaternion>(name, "A rotation in space")
        .template constructor<T, T, T, T>("w, x, y, z")
        .staticMethod(
            "about",
            [](T angle, Vector3 const& axis) { return Quaternion(Eigen::AngleAxis<T>(angle, axis.normalized())); },
            "angle (in radians), axis")
        .method(
            "times", [](Quaternion const* a, Quaternion const& b) { return *a * b; }, "this, other")
        .method(
            "call", [](Quaternion const* q, Vector3 const& v) -> Vector3 { return *q * v; }, "this, vector")
        .property(
            "coefficients", [](Quaternion const* q) -> Eigen::Matrix<T, 4, 1> { return q->coeffs(); },
            "Of x, y, z and w");
}

void publishModule(orbis::factory::Module& eigen)
{
    using LU = Eigen::FullPivLU<Matrix>;
    using QR = Eigen::ColPivHouseholderQR<Matrix>;
    using Symmetric = Eigen::SelfAdjointEigenSolver<Matrix>;
    eigen.error<std::invalid_argument>("eigen:invalid");
    describeSolver<LU>(eigen.publish<LU>("LU", "Decomposes a square matrix"))
        .property("determinant", &LU::determinant)
        .method("inverse", [](LU const* lu) -> Matrix { return lu->inverse(); });
    describeSolver<QR>(eigen.publish<QR>("QR", "Decomposes a matrix, for least squares"))
        .property("factor", &QR::matrixR);
    eigen.publish<Symmetric>("Symmetric", "The eigenvalues of a symmetric matrix")
        .constructor<View>("matrix")
        .property("values", &Symmetric::eigenvalues)
        .property("vectors", &Symmetric::eigenvectors);
    publishQuaternion<double>(eigen, "Quaternion");
    publishQuaternion<float>(eigen, "SingleQuaternion");
    eigen.function("smallest", &smallest, "matrix", "The smallest element, its row and its column, from 1");
}
