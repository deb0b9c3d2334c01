#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/throwNullInput.hpp"
#include "orbis/factory/detail/bindings/bindings.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/marshaling/ReferredObjects.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"
#include "orbis/factory/ownership/InterfaceListEnumeration.hpp"

#include "orbis/objectArrays.hpp"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace orbis::factory {

/// `std::vector` of pointers to published objects: `std::vector<T*>` with this header, shared pointers with
/// `sharedObjectVectors.hpp`. Each element is marshaled as it is alone; null elements are null in the host, too.
///
/// Passed to the host as one row, typed as the class or, if the class has published subclasses, as the most specific
/// class that all elements have in common. From the host it takes all elements of an array of any size, in column
/// order. An object without a native object of the class is rejected with the `null_input` error.
class ObjectVectorPolicy {};

template <>
class Marshaler<ObjectVectorPolicy> : public detail::DataTypeName<Marshaler<ObjectVectorPolicy>> {
    template <class Vector>
    using Element = typename Vector::value_type;

    template <class Vector>
    using Class = std::remove_const_t<typename std::pointer_traits<Element<Vector>>::element_type>;

public:
    template <class Vector>
    static void toHost(Vector const& values, hvArray** out)
    {
        toHostInside<Vector>(detail::NoWhole(), values, out);
    }

    /// The same for a result of `whole`, inside which the objects may lie.
    template <class Vector, class Whole>
    static void toHostInside(Whole const& whole, Vector const& values, hvArray** out)
    {
        detail::NewArray row(omCreateORBISMatrix(1, values.size(), COSNameID(detail::hostName<Class<Vector>>())));
        try {
            for (std::size_t i = 0; i < values.size(); ++i)
                setElement(whole, row.get(), i, values[i]);
        } catch (...) {
            if constexpr (std::is_pointer_v<Element<Vector>>)
                for (auto const& value : values)
                    detail::releaseResult(detail::boundAddressOf(value), row.get());
            throw;
        }
        if constexpr (detail::MarshalerOf<Class<Vector>*>::isHeterogeneous)
            omSetClassOfHeterogeneousArray(row.get());
        *out = row.release();
    }

    template <class Vector>
    static Vector fromHost(hvArray_tag const* in)
    {
        Vector values;
        if (!omIsORBIS(in)) // "[]" is no objects
            return values;
        std::size_t const count = in->get_number_of_elements();
        values.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            COSInterfacePtr const object = omGetArrayElement(in, i);
            values.push_back(fromObject<Element<Vector>>(object, in));
        }
        return values;
    }

    template <class Vector>
    static char const* dataTypeText()
    {
        static std::string const text = detail::dataTypeTextWith(detail::hostName<Class<Vector>>(), " vector");
        return text.c_str();
    }

    template <class Vector>
    static consteval bool refusesNull()
    {
        return true;
    }

    template <class Vector>
    static consteval bool isView()
    {
        return detail::isView<Element<Vector>>();
    }

private:
    /// Elements are marshaled as single objects are, except that a failure leaves objects whose owner is the host's
    /// choice where they are.
    template <class Pointer>
    static bool isResult([[maybe_unused]] auto const& whole, [[maybe_unused]] Pointer const& value)
    {
        if constexpr (detail::StoresHandle<Pointer>)
            return whole.contains(value) && whole.host();
        else
            return detail::StoresNamedObject<Pointer>;
    }

    template <class Pointer>
    static hvArray_tag* asResult([[maybe_unused]] auto const& whole, [[maybe_unused]] Pointer const& value)
    {
        if constexpr (detail::ObjectResult<Pointer>)
            return detail::objectResult<Pointer>(whole, [&] { return value; });
        else
            return nullptr;
    }

    template <class Pointer>
    static void setElement([[maybe_unused]] auto const& whole, hvArray_tag* row, std::size_t i, Pointer const& value)
    {
        if (!value)
            return;
        detail::NewArray scalar;
        if (isResult<Pointer>(whole, value))
            *scalar.place() = asResult(whole, value);
        else
            detail::MarshalerOf<Pointer>::template toHost<detail::MarshaledTypeOf<Pointer>>(value, scalar.place());
        omSetArrayElement(row, i, omGetArrayElement(scalar.get(), 0));
    }

    template <class Pointer>
    static auto fromObject(COSInterface const* object, hvArray_tag const* in)
    {
        auto element = detail::MarshalerOf<Pointer>::template fromObject<detail::MarshaledTypeOf<Pointer>>(object);
        if (object && !element)
            detail::throwNullInput(
                in, detail::hostName<std::remove_const_t<typename std::pointer_traits<Pointer>::element_type>>());
        return element;
    }
};

template <class T>
    requires PublishedClass<std::remove_const_t<T>> || NamedType<std::remove_const_t<T>>
struct MarshalingPolicy<std::vector<T*>> {
    using Type = ObjectVectorPolicy;
};

namespace detail {

template <class T>
inline constexpr bool isObjectVector<std::vector<T*>> = true;

/// Specialisation base for vectors, which refer to the object of each element.
template <class Vector>
struct ReferredByElements {
    static constexpr bool any = true;

    static void find(Vector const& values, Enumeration<COSInterface*>& found)
    {
        std::vector<void const*> addresses;
        addresses.reserve(values.size());
        for (auto const& value : values)
            addresses.push_back(boundAddressOf(value));
        found = InterfaceListEnumeration::ofBound(addresses);
    }
};

template <class T>
    requires PublishedClass<std::remove_const_t<T>> || NamedType<std::remove_const_t<T>>
struct ReferredObjects<std::vector<T*>> : ReferredByElements<std::vector<T*>> {};

} // namespace detail
} // namespace orbis::factory
