#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/numericArrays.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace orbis::factory {

/// A matrix of numbers or `bool` that someone else owns, its elements column by column.
template <COSScalar T>
struct MatrixView {
    T const* data = nullptr; ///< `rows` times `columns` elements
    std::size_t rows = 0;    ///< the height
    std::size_t columns = 0; ///< the width

    /// An element by its place, counted from 0 and not checked.
    T const& operator()(std::size_t row, std::size_t column) const { return data[column * rows + row]; }
    std::size_t size() const { return rows * columns; } ///< the number of elements
};

/// The same, owning its elements, which are zero at first. Moving leaves a matrix of 0-by-0.
template <COSScalar T>
class Matrix {
public:
    Matrix() = default;

    /// Throws `std::bad_alloc` when there is no memory.
    Matrix(std::size_t rows, std::size_t columns)
        : data_(std::make_unique<T[]>(requireSize(rows, columns))),
          rows_(rows),
          columns_(columns)
    {
    }

    /// Copies the elements. Throws `std::bad_alloc`.
    explicit Matrix(MatrixView<T> view) : Matrix(view.rows, view.columns)
    {
        std::copy_n(view.data, view.size(), data_.get());
    }

    Matrix(Matrix const& other) : Matrix(other.view()) {}
    Matrix(Matrix&& other) noexcept { swap(other); }

    Matrix& operator=(Matrix other) noexcept
    {
        swap(other);
        return *this;
    }

    ~Matrix() = default;

    /// An element by its place, counted from 0 and not checked.
    T& operator()(std::size_t row, std::size_t column) { return data_[column * rows_ + row]; }
    T const& operator()(std::size_t row, std::size_t column) const { return data_[column * rows_ + row]; } ///< likewise

    /// The elements, column by column.
    T* data() { return data_.get(); }
    T const* data() const { return data_.get(); }                         ///< likewise
    std::size_t rows() const { return rows_; }                            ///< the height
    std::size_t columns() const { return columns_; }                      ///< the width
    MatrixView<T> view() const { return {data_.get(), rows_, columns_}; } ///< valid until this is changed or destroyed

private:
    static std::size_t requireSize(std::size_t rows, std::size_t columns)
    {
        if (columns != 0 && rows > static_cast<std::size_t>(-1) / sizeof(T) / columns)
            throw std::bad_alloc();
        return rows * columns;
    }

    void swap(Matrix& other) noexcept
    {
        std::swap(data_, other.data_);
        std::swap(rows_, other.rows_);
        std::swap(columns_, other.columns_);
    }

    std::unique_ptr<T[]> data_;
    std::size_t rows_ = 0;
    std::size_t columns_ = 0;
};

namespace detail {

/// Returns the elements and the size of an array of the class of `T`; 0-by-0 for null.
template <COSScalar T>
MatrixView<T> viewOf(hvArray_tag const* array)
{
    T const* const data = elementsOf<T>(array).data();
    return array ? MatrixView<T>{data, array->get_dimensions()[0], array->get_dimensions()[1]} : MatrixView<T>();
}

} // namespace detail

/// `MatrixView<T>` and `Matrix<T>`, which keep their shape. A view that is a parameter refers to the host's elements
/// during the call; nothing is copied, except where the host converts (see `NumericVectorPolicy`). Otherwise elements
/// are copied once.
class MatrixPolicy {};

template <>
class Marshaler<MatrixPolicy> : public detail::DataTypeName<Marshaler<MatrixPolicy>> {
    template <class T>
    static MatrixView<T> viewOf(MatrixView<T> view)
    {
        return view;
    }

    template <class T>
    static MatrixView<T> viewOf(Matrix<T> const& matrix)
    {
        return matrix.view();
    }

    template <class M>
    using Element = std::remove_cvref_t<decltype(std::declval<M>()(0, 0))>;

public:
    template <class M>
    static void toHost(M const& matrix, hvArray** out)
    {
        MatrixView<Element<M>> const view = viewOf(matrix);
        *out = host_extensions::createMatrix(view.rows, view.columns, COSValue::classOf<Element<M>>(), view.data);
    }

    template <class M>
    static M fromHost(hvArray_tag const* in)
    {
        return M(detail::viewOf<Element<M>>(in));
    }

    template <class M>
    static constexpr char const* dataTypeText()
    {
        return host_extensions::numericClassOf<Element<M>>.vectorType;
    }

    template <class M>
    static consteval bool isView()
    {
        return std::is_same_v<M, MatrixView<Element<M>>>;
    }
};

template <COSScalar T>
struct MarshalingPolicy<MatrixView<T>> {
    using Type = MatrixPolicy;
};

template <COSScalar T>
struct MarshalingPolicy<Matrix<T>> {
    using Type = MatrixPolicy;
};

} // namespace orbis::factory
