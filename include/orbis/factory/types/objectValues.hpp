#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/objects/ownedObjects.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"
#include "orbis/factory/marshaling/elements.hpp"
#include "orbis/factory/types/NamedPointerPolicies.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"

#include "host_extensions/host_extensions.hpp"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace orbis::factory {

namespace detail {

/// Classes whose objects cross by value.
template <class T>
concept IsObjectValue = HasPolicy<T> && !std::is_pointer_v<T> &&
                        (std::same_as<PolicyOf<T>, NamedObjectPolicy> || std::same_as<PolicyOf<T>, ValueObjectPolicy>);

/// The class of an element: an object, or a pointer that owns one.
template <class E>
struct ElementClass {
    using Type = E;
};

template <class T>
struct ElementClass<std::unique_ptr<T>> {
    using Type = std::remove_const_t<T>;
};

template <class T>
struct ElementClass<std::shared_ptr<T>> {
    using Type = std::remove_const_t<T>;
};

} // namespace detail

/// `std::vector` of objects by value, of value classes and classes that a `Module` names; of `std::unique_ptr` and
/// `std::shared_ptr` to the latter. Each element is marshaled as it is alone. Passed to the host as one row of objects,
/// null for empty pointers. From the host it takes all objects of an array of any size, in column order, or none of
/// them: an error, which names the element, leaves all objects with their owners.
class ObjectValuesPolicy {};

template <>
class Marshaler<ObjectValuesPolicy> : public detail::DataTypeName<Marshaler<ObjectValuesPolicy>> {
    template <class Vector>
    using Element = typename Vector::value_type;

    template <class Vector>
    using Class = typename detail::ElementClass<Element<Vector>>::Type;

    template <class Vector>
    static constexpr bool isOfValues = std::is_same_v<Element<Vector>, Class<Vector>>;

    template <class Vector>
    static constexpr bool isTaken = std::is_same_v<detail::PolicyOf<Element<Vector>>, UniquePointerPolicy>;

public:
    /// Takes the objects when the native function is called, because the conversion of a later argument may fail.
    template <class Vector>
    struct Owned {
        hvArray_tag const* in;

        Vector value() const
        {
            using T = typename Element<Vector>::element_type;
            detail::NamedClass const& named = detail::namedClassOf<Class<Vector>>();
            detail::NewArray const objects(detail::ownedObjects(named, in, isTaken<Vector>));
            std::size_t const count = objects.get()->get_number_of_elements();
            Vector values;
            values.reserve(count);
            for (std::size_t i = 0; i < count; ++i) {
                hvArray_tag const* const object = host_extensions::getCell(objects.get(), i);
                if constexpr (isTaken<Vector>)
                    values.emplace_back(static_cast<T*>(detail::takeNamed(named, object)));
                else
                    values.push_back(Marshaler<NamedSharedPointerPolicy>::fromHost<Element<Vector>>(object));
            }
            return values;
        }
    };

    template <class Vector, class V>
    static void toHost(V&& values, hvArray** out)
    {
        detail::NewArray row(omCreateORBISMatrix(1, values.size(), COSNameID(detail::hostName<Class<Vector>>())));
        for (std::size_t i = 0; i < values.size(); ++i) {
            using E = std::conditional_t<std::is_lvalue_reference_v<V>, Element<Vector> const&, Element<Vector>&&>;
            detail::NewArray const object(detail::elementToHost<Element<Vector>>(static_cast<E>(values[i])));
            if (object.get()->get_number_of_elements() != 0)
                omSetArrayElement(row.get(), i, omGetArrayElement(object.get(), 0));
        }
        if constexpr (detail::MarshalerOf<Class<Vector>*>::isHeterogeneous)
            omSetClassOfHeterogeneousArray(row.get());
        *out = row.release();
    }

    template <class Vector>
        requires(isOfValues<Vector>)
    static Vector fromHost(hvArray_tag const* in)
    {
        return detail::readVector<Vector>(in);
    }

    template <class Vector>
        requires(!isOfValues<Vector>)
    static Owned<Vector> fromHost(hvArray_tag const* in)
    {
        return {in};
    }

    template <class Vector>
    static char const* dataTypeText()
    {
        static std::string const text = detail::dataTypeTextWith(detail::hostName<Class<Vector>>(), " vector");
        return text.c_str();
    }
};

template <class T>
    requires detail::IsObjectValue<T>
struct MarshalingPolicy<std::vector<T>> {
    using Type = ObjectValuesPolicy;
    static constexpr bool namesInput = true;
};

template <class T>
    requires NamedType<std::remove_const_t<T>>
struct MarshalingPolicy<std::vector<std::unique_ptr<T>>> {
    static constexpr detail::Refusal refusal = detail::marshalingRefusal<std::unique_ptr<T>>();
    static constexpr bool namesInput = true;
    using Type = ObjectValuesPolicy;
};

template <class T>
    requires NamedType<std::remove_const_t<T>>
struct MarshalingPolicy<std::vector<std::shared_ptr<T>>> {
    static constexpr detail::Refusal refusal = detail::marshalingRefusal<std::shared_ptr<T>>();
    static constexpr bool namesInput = true;
    using Type = ObjectValuesPolicy;
};

} // namespace orbis::factory
