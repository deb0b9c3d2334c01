#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"
#include "orbis/factory/types/matrix.hpp"

#include <string>

// Include this beside Eigen's own headers: it only declares their types.
namespace Eigen {

template <class Scalar, int Rows, int Columns, int Options, int MaxRows, int MaxColumns>
class Matrix;
template <class Scalar, int Rows, int Columns, int Options, int MaxRows, int MaxColumns>
class Array;
template <class Plain, int Options, class Stride>
class Map;
template <class Plain, int Options, class Stride>
class Ref;
template <int Outer, int Inner>
class Stride;

} // namespace Eigen

namespace orbis::factory {

/// Matrices and arrays of Eigen, of fixed and of dynamic size, and constant `Eigen::Map` and `Eigen::Ref` to them.
/// They keep their shape. `Map` and `Ref` that are parameters refer to the host's elements during the call, if their
/// elements are in column order; nothing is copied, except where the host converts (see `NumericVectorPolicy`) or the
/// layout differs. Otherwise elements are copied once. A size that differs from a fixed one is refused; a vector takes
/// a row as well as a column.
class EigenPolicy {};

namespace detail {

/// The matrix or array that a type of Eigen is or refers to.
template <class E>
struct EigenPlain {
    using Type = E;
    static constexpr bool isView = false;
};

template <class P, int O, class S>
struct EigenPlain<Eigen::Map<P, O, S>> {
    using Type = P;
    static constexpr bool isView = true;
};

template <class P, int O, class S>
struct EigenPlain<Eigen::Ref<P, O, S>> {
    using Type = P;
    static constexpr bool isView = true;
};

/// The column-major matrix or array with the same elements, as the host has it.
template <class P>
struct EigenColumns;

template <class T, int R, int C, int O, int MR, int MC>
struct EigenColumns<Eigen::Matrix<T, R, C, O, MR, MC>> {
    // A row vector is not column-major in Eigen's terms.
    using Type = Eigen::Matrix<T, R, C, (R == 1 && C != 1) ? 1 : 0, MR, MC>;
};

template <class T, int R, int C, int O, int MR, int MC>
struct EigenColumns<Eigen::Array<T, R, C, O, MR, MC>> {
    using Type = Eigen::Array<T, R, C, (R == 1 && C != 1) ? 1 : 0, MR, MC>;
};

template <class P>
using EigenHostMap = Eigen::Map<typename EigenColumns<P>::Type const, 0, Eigen::Stride<0, 0>>;

/// Returns a map of the host's elements, after checking their size.
template <class P>
EigenHostMap<P> mapHostElements(hvArray_tag const* in)
{
    MatrixView<typename P::Scalar> view = viewOf<typename P::Scalar>(in);
    constexpr int rows = P::RowsAtCompileTime, columns = P::ColsAtCompileTime;
    if constexpr (rows == 1 || columns == 1)
        if ((columns == 1 && view.rows == 1) || (rows == 1 && view.columns == 1))
            std::swap(view.rows, view.columns);
    if (view.size() == 0 && (rows == 1 || columns == 1)) { // "[]" is no elements
        view.rows = rows == 1 ? 1 : 0;
        view.columns = columns == 1 ? 1 : 0;
    }
    auto const fits = [](std::size_t size, int fixed, int most) {
        return fixed >= 0 ? size == static_cast<std::size_t>(fixed)
                          : most < 0 || size <= static_cast<std::size_t>(most);
    };
    auto const text = [](int fixed) { return fixed >= 0 ? std::to_string(fixed) : std::string("n"); };
    if (!fits(view.rows, rows, P::MaxRowsAtCompileTime) || !fits(view.columns, columns, P::MaxColsAtCompileTime))
        throwNotConvertible("needs a matrix of " + text(rows) + "-by-" + text(columns) + ", not of " +
                            std::to_string(view.rows) + "-by-" + std::to_string(view.columns));
    return EigenHostMap<P>(view.data, static_cast<std::ptrdiff_t>(view.rows),
                           static_cast<std::ptrdiff_t>(view.columns));
}

} // namespace detail

template <>
class Marshaler<EigenPolicy> : public detail::DataTypeName<Marshaler<EigenPolicy>> {
    template <class E>
    using Plain = std::remove_const_t<typename detail::EigenPlain<E>::Type>;

    template <class E>
    static constexpr bool isReference = detail::EigenPlain<E>::isView;

public:
    /// Refers to the host's elements, or holds a copy of another layout.
    template <class E>
    class Referring {
    public:
        explicit Referring(hvArray_tag const* in) : elements_(detail::mapHostElements<Plain<E>>(in)), value_(elements_)
        {
        }

        E& value() { return value_; }

    private:
        detail::EigenHostMap<Plain<E>> elements_;
        E value_;
    };

    template <class E>
    static void toHost(E const& value, hvArray** out)
    {
        using T = typename Plain<E>::Scalar;
        using Columns = typename detail::EigenColumns<Plain<E>>::Type;
        detail::NewArray array(host_extensions::createMatrix(
            static_cast<std::size_t>(value.rows()), static_cast<std::size_t>(value.cols()), COSValue::classOf<T>()));
        if (value.size() != 0)
            Eigen::Map<Columns, 0, Eigen::Stride<0, 0>>(static_cast<T*>(host_extensions::getWritableData(array.get())),
                                                        value.rows(), value.cols()) = value;
        *out = array.release();
    }

    template <class E>
        requires(!isReference<E>)
    static E fromHost(hvArray_tag const* in)
    {
        return E(detail::mapHostElements<E>(in));
    }

    template <class E>
        requires(isReference<E>)
    static Referring<E> fromHost(hvArray_tag const* in)
    {
        return Referring<E>(in);
    }

    template <class E>
    static constexpr char const* dataTypeText()
    {
        return host_extensions::numericClassOf<typename Plain<E>::Scalar>.vectorType;
    }

    template <class E>
    static consteval bool isView()
    {
        return isReference<E>;
    }
};

namespace detail {

/// Why a parameter cannot refer to the host's elements.
template <class E>
consteval Refusal eigenArgumentRefusal()
{
    using Plain = typename EigenPlain<E>::Type;
    if (!std::is_const_v<Plain>)
        return Refusal::WritableMap;
    bool const isLaidOutAlike = std::is_constructible_v<E, EigenHostMap<std::remove_const_t<Plain>> const&>;
    return isLaidOutAlike ? Refusal::None : Refusal::OtherLayout;
}

} // namespace detail

template <COSScalar T, int R, int C, int O, int MR, int MC>
struct MarshalingPolicy<Eigen::Matrix<T, R, C, O, MR, MC>> {
    using Type = EigenPolicy;
    static constexpr bool namesInput = true;
};

template <COSScalar T, int R, int C, int O, int MR, int MC>
struct MarshalingPolicy<Eigen::Array<T, R, C, O, MR, MC>> {
    using Type = EigenPolicy;
    static constexpr bool namesInput = true;
};

template <class P, int O, class S>
struct MarshalingPolicy<Eigen::Map<P, O, S>> {
    using Type = EigenPolicy;
    static constexpr bool namesInput = true;
    static constexpr detail::Refusal argumentRefusal = detail::eigenArgumentRefusal<Eigen::Map<P, O, S>>();
};

template <class P, int O, class S>
struct MarshalingPolicy<Eigen::Ref<P, O, S>> {
    using Type = EigenPolicy;
    static constexpr bool namesInput = true;
    static constexpr detail::Refusal argumentRefusal = detail::eigenArgumentRefusal<Eigen::Ref<P, O, S>>();
};

} // namespace orbis::factory
