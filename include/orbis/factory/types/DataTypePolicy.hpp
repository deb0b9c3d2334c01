#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/ArgumentHolder.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "libhv/hvArray.hpp"

#include <concepts>

namespace orbis::factory {

/// Names the registered host data type of a native type, and converts between the two. Specialise it for a type of your
/// own whose data type you register with the host:
///
///     template <>
///     struct orbis::factory::HostDataType<Color> {
///         static constexpr char const* name = "paint.Color scalar";
///         static hvArray* toHost(Color const& color);   // returns a new value, owned by the caller
///         static Color fromHost(hvArray* value);        // the host keeps `value`; null is the data type's null
///     };
template <class T>
struct HostDataType;

/// Satisfied by types with a `HostDataType`.
template <class T>
concept HasHostDataType = requires(T const& native, hvArray* value) {
    {
        HostDataType<T>::name
    } -> std::convertible_to<char const*>;
    {
        HostDataType<T>::toHost(native)
    } -> std::same_as<hvArray*>;
    {
        HostDataType<T>::fromHost(value)
    } -> std::same_as<T>;
};

/// Native types with a `HostDataType`. The host converts arguments to that data type before the library sees them, so
/// the data type defines which values a parameter accepts, and how they are described and compared.
class DataTypePolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<DataTypePolicy> : public detail::DataTypeName<Marshaler<DataTypePolicy>> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <class T>
    class FromM final : public detail::ValueHolder<T> {
    public:
        using detail::ValueHolder<T>::ValueHolder;
    };

    template <HasHostDataType T>
    static void toHost(T const& value, hvArray** out)
    {
        *out = HostDataType<T>::toHost(value);
    }

    template <HasHostDataType T>
    static FromM<T> fromHost(hvArray* in)
    {
        return FromM<T>(HostDataType<T>::fromHost(in));
    }

    template <HasHostDataType T>
    static constexpr char const* dataTypeText()
    {
        return HostDataType<T>::name;
    }
};

template <HasHostDataType T>
struct MarshalingPolicy<T> {
    using Type = DataTypePolicy;
};

} // namespace orbis::factory
