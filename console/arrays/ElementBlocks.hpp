#pragma once

#include "arrays/Shape.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

#include <algorithm>
#include <concepts>

namespace velmara::console {

/// The elements of a numeric or logical array as numbers of type `T`, in column order and in blocks, so that each
/// operation has one plain loop. One row, or column, is repeated to fill a shape.
///
/// A floating `T` takes arrays of every class, each element rounded to the nearest; any other only those of its own.
template <class T>
class ElementBlocks {
public:
    static constexpr std::size_t maxSize = 512;

    ElementBlocks(hvArray_tag const& array, Shape shape)
        : data_(orbis::host_extensions::getData(&array)),
          rows_(shape.rows),
          rowStep_(shapeOf(array).rows == 1 ? 0 : 1),
          columnStep_(shapeOf(array).columns == 1 ? 0 : shapeOf(array).rows),
          isWhole_(shapeOf(array) == shape)
    {
        hvClassID const classID = array._get_class_id_non_trivial();
        if (isWhole_ && classID == orbis::COSValue::classOf<T>())
            return;
        load_ =
            orbis::host_extensions::visitNumericClass(classID, []<class Source>(Source) { return loader<Source>(); });
        isRepeated_ = rowStep_ == 0 && columnStep_ == 0;
        if (isRepeated_ && shape.count() != 0)
            (this->*load_)(0, std::min(maxSize, shape.count()));
    }

    /// At most `maxSize` elements from a zero-based linear index on. Valid until the next call.
    T const* at(std::size_t start, std::size_t count)
    {
        if (!load_)
            return static_cast<T const*>(data_) + start;
        if (!isRepeated_)
            (this->*load_)(start, count);
        return buffer_;
    }

private:
    using Loader = void (ElementBlocks::*)(std::size_t start, std::size_t count);

    template <class Source>
    static Loader loader()
    {
        if constexpr (std::floating_point<T> || std::same_as<T, Source>)
            return &ElementBlocks::load<Source>;
        else
            return nullptr;
    }

    template <class Source>
    void load(std::size_t start, std::size_t count)
    {
        auto const* const source = static_cast<Source const*>(data_);
        if (isWhole_) {
            for (std::size_t i = 0; i < count; ++i)
                buffer_[i] = static_cast<T>(source[start + i]);
            return;
        }
        std::size_t row = start % rows_;
        std::size_t column = start / rows_;
        for (std::size_t done = 0; done < count; row = 0, ++column) {
            std::size_t const run = std::min(count - done, rows_ - row);
            Source const* const from = source + row * rowStep_ + column * columnStep_;
            for (std::size_t i = 0; i < run; ++i)
                buffer_[done + i] = static_cast<T>(from[i * rowStep_]);
            done += run;
        }
    }

    void const* data_;
    std::size_t rows_;
    std::size_t rowStep_;
    std::size_t columnStep_;
    bool isWhole_;
    bool isRepeated_ = false;
    Loader load_ = nullptr; ///< null when the array's own elements serve
    T buffer_[maxSize];
};

/// Calls `visit(start, count, elements)` for one block after the other of an array expanded to a shape.
template <class T, class Visit>
void visitBlocks(hvArray_tag const& array, Shape shape, Visit const& visit)
{
    ElementBlocks<T> blocks(array, shape);
    std::size_t const total = shape.count();
    for (std::size_t start = 0; start < total; start += ElementBlocks<T>::maxSize) {
        std::size_t const count = std::min(ElementBlocks<T>::maxSize, total - start);
        visit(start, count, blocks.at(start, count));
    }
}

} // namespace velmara::console
