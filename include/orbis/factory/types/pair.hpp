#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/numericArrays.hpp"
#include "orbis/factory/marshaling/elements.hpp"

#include <array>
#include <tuple>
#include <utility>

namespace orbis::factory {

/// `std::pair` and `std::tuple` of types that cross: a list of as many elements. Passed to the host as a row of cells
/// or, if all elements are numbers of one class, as a row of numbers. Errors name the element.
class TuplePolicy {};

template <>
class Marshaler<TuplePolicy> : public detail::DataTypeName<Marshaler<TuplePolicy>> {
    template <class Tuple>
    static constexpr std::size_t size = std::tuple_size_v<Tuple>;

    template <class Tuple>
    using Indices = std::make_index_sequence<size<Tuple>>;

    template <class Tuple, std::size_t Index>
    using Element = std::tuple_element_t<Index, Tuple>;

public:
    template <class Tuple, class V>
    static void toHost(V&& value, hvArray** out)
    {
        [&]<std::size_t... Index>(std::index_sequence<Index...>) {
            if constexpr (isRow<Tuple>(Indices<Tuple>())) {
                std::array<Element<Tuple, 0>, size<Tuple>> const numbers{std::get<Index>(value)...};
                *out = detail::createRow(std::span<Element<Tuple, 0> const>(numbers));
            } else {
                detail::NewCells cells(1, size<Tuple>);
                (cells.set(Index,
                           detail::elementToHost<Element<Tuple, Index>>(std::get<Index>(std::forward<V>(value)))),
                 ...);
                *out = cells.release();
            }
        }(Indices<Tuple>());
    }

    template <class Tuple>
    static Tuple fromHost(hvArray_tag const* in)
    {
        detail::ListElements elements(in, size<Tuple>);
        return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
            return Tuple{detail::atElement(
                Index, [&] { return detail::ElementReader<Element<Tuple, Index>>().read(elements.at(Index)); })...};
        }(Indices<Tuple>());
    }

    template <class Tuple>
    static constexpr char const* dataTypeText()
    {
        return "any";
    }

    template <class Tuple>
    static consteval bool isList()
    {
        return true;
    }

    /// If one of the elements is.
    template <class Tuple>
    static consteval bool isView()
    {
        return []<std::size_t... Index>(std::index_sequence<Index...>) {
            return (detail::isView<Element<Tuple, Index>>() || ...);
        }(Indices<Tuple>());
    }

private:
    template <class Tuple, std::size_t... Index>
    static consteval bool isRow(std::index_sequence<Index...>)
    {
        if constexpr (size<Tuple> == 0)
            return false;
        else
            return COSScalar<Element<Tuple, 0>> && (std::is_same_v<Element<Tuple, Index>, Element<Tuple, 0>> && ...);
    }
};

template <class A, class B>
struct MarshalingPolicy<std::pair<A, B>> : detail::ElementRefusals<A, B> {
    using Type = TuplePolicy;
};

template <class... T>
struct MarshalingPolicy<std::tuple<T...>> : detail::ElementRefusals<T...> {
    using Type = TuplePolicy;
};

} // namespace orbis::factory
