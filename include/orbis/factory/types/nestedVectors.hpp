#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/elements.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"
#include "orbis/factory/types/objectValues.hpp"
#include "orbis/factory/types/stringVectors.hpp"

#include <type_traits>
#include <utility>
#include <vector>

namespace orbis::factory {

/// `std::vector` of whatever else crosses: of vectors, pairs, maps, optional values and so on. Passed to the host as a
/// row of cells. From the host it takes lists; of vectors and other lists also a matrix, whose rows they are. Errors
/// name the element.
class ListPolicy {};

template <>
class Marshaler<ListPolicy> : public detail::DataTypeName<Marshaler<ListPolicy>> {
    template <class Vector>
    using Element = typename Vector::value_type;

public:
    template <class Vector, class V>
    static void toHost(V&& values, hvArray** out)
    {
        detail::NewCells cells(1, values.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            if constexpr (std::is_lvalue_reference_v<V>)
                cells.set(i, detail::elementToHost<Element<Vector>>(values[i]));
            else
                cells.set(i, detail::elementToHost<Element<Vector>>(std::move(values[i])));
        }
        *out = cells.release();
    }

    template <class Vector>
    static Vector fromHost(hvArray_tag const* in)
    {
        return detail::readVector<Vector>(in);
    }

    template <class Vector>
    static constexpr char const* dataTypeText()
    {
        return "any";
    }

    template <class Vector>
    static consteval bool isList()
    {
        return true;
    }

    template <class Vector>
    static consteval bool isView()
    {
        return detail::isView<Element<Vector>>();
    }
};

namespace detail {

/// Elements of vectors with a policy of their own.
template <class E>
concept HasVectorPolicy =
    COSScalar<E> || std::is_enum_v<E> || std::is_pointer_v<E> || IsObjectValue<E> || HasHostDataType<std::vector<E>>;

} // namespace detail

template <class E>
    requires(!detail::HasVectorPolicy<E>)
struct MarshalingPolicy<std::vector<E>> : detail::ElementRefusals<E> {
    using Type = ListPolicy;
};

} // namespace orbis::factory
