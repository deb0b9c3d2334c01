#pragma once

#include "orbis/factory/detail/arrays/ElementInput.hpp"
#include "orbis/factory/detail/arrays/ListElements.hpp"
#include "orbis/factory/detail/arrays/NewCells.hpp"
#include "orbis/factory/detail/arrays/throwNullInput.hpp"
#include "orbis/factory/marshaling/Argument.hpp"

#include "orbis/objectArrays.hpp"

#include <cstddef>
#include <type_traits>
#include <utility>

/// The elements of lists, of any type that crosses.
namespace orbis::factory::detail {

/// Whether values of the type cross as lists: a matrix is then a list of them, its rows.
template <class T>
consteval bool isList()
{
    if constexpr (requires { MarshalerOf<T>::template isList<T>(); })
        return MarshalerOf<T>::template isList<T>();
    else
        return false;
}

/// Raw and shared pointers to objects.
template <class T>
concept PointsToObject = std::is_pointer_v<T> || requires(T const& value) {
    typename T::element_type;
    value.get();
    value.use_count();
};

/// Whether converting a value of the type, or one inside it, takes an object from its host object.
template <class T>
consteval bool takesObjects()
{
    if constexpr (requires(T const& value) { value.get_deleter(); })
        return true;
    else if constexpr (requires { typename T::value_type; })
        return takesObjects<typename T::value_type>();
    else
        return false;
}

/// Returns why a list that is an argument cannot have elements of the type, or `None`.
template <class T>
consteval Refusal elementArgumentRefusal()
{
    if constexpr (elementRefusal<T>() != Refusal::None)
        return elementRefusal<T>();
    else if constexpr (std::is_reference_v<T> || std::is_same_v<T, char*> || std::is_same_v<T, char16_t*> ||
                       (isView<T>() && !PointsToObject<T>))
        return Refusal::ElementView;
    else
        return takesObjects<T>() ? Refusal::ElementTaken : argumentRefusal<T>();
}

/// Base of the `MarshalingPolicy` of compound types: what their elements refuse, they do.
template <class... E>
struct ElementRefusals {
    static constexpr bool namesInput = true;
    static constexpr Refusal refusal = firstRefusal(elementRefusal<E>()...);
    static constexpr Refusal argumentRefusal = firstRefusal(elementArgumentRefusal<E>()...);
};

/// Reads elements of type `T`.
template <class T>
class ElementReader {
public:
    static_assert(elementArgumentRefusal<T>() == Refusal::None);

    bool isList() const { return detail::isList<T>() || type_.isVector(); }

    T read(hvArray_tag const* element) const
    {
        ElementInput const input(type_, element);
        Argument<T> argument(input.value());
        if constexpr (PointsToObject<T>) {
            T value = argument.get();
            hvArray_tag const* const array = input.value().array();
            if (!value && omIsORBIS(array) && array->get_number_of_elements() != 0 && omGetArrayElement(array, 0))
                throwNullInput(element, dataTypeText<T>());
            return value;
        } else {
            return argument.get();
        }
    }

private:
    ElementType type_{dataTypeText<T>()};
};

/// Passes the elements of a list to `append`, converted one by one; errors of both name the element. `reserve` gets
/// their number first.
template <class T, class Reserve, class Append>
void readElements(hvArray_tag const* list, Reserve reserve, Append append)
{
    ElementReader<T> const reader;
    ListElements elements(list, reader.isList());
    reserve(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i)
        atElement(i, [&] { append(reader.read(elements.at(i))); });
}

/// Returns a vector of the elements of a list.
template <class Vector>
Vector readVector(hvArray_tag const* list)
{
    using Element = typename Vector::value_type;
    Vector values;
    readElements<Element>(
        list, [&](std::size_t count) { values.reserve(count); },
        [&](Element&& value) { values.push_back(std::move(value)); });
    return values;
}

/// Returns an array, owned by the caller, of a value that is passed to the host as a `T`; null for an empty value.
template <class T, class V>
hvArray_tag* elementToHost(V&& value)
{
    COSValue slot;
    int outputCount = 1;
    storeResult<T>(outputCount, &slot, [&]() -> V&& { return std::forward<V>(value); });
    return toArray(slot);
}

} // namespace orbis::factory::detail
