#pragma once

#include "orbis/factory/detail/arrays/ArgumentHolder.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/PassedArray.hpp"
#include "orbis/factory/marshaling/Argument.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/marshaling/ReferredObjects.hpp"

#include "host_extensions/host_extensions.hpp"
#include "orbis/COSNameID.hpp"

#include <optional>
#include <string>

namespace orbis::factory {

/// `std::optional<T>`, for every marshalable `T`. A value is marshaled as a `T`. No value is passed to the host as
/// "[]", a 0-by-0 double array; the host may pass that or a missing string for it. The data type is that of `T`
/// followed by " or empty", for which the host passes an empty slot if there is no value.
class OptionalPolicy {};

template <>
class Marshaler<OptionalPolicy> : public detail::DataTypeName<Marshaler<OptionalPolicy>> {
public:
    /// Holds the value, and what it may refer to, for the length of the call.
    template <class Optional>
    class FromM final : public detail::ArgumentHolder {
    public:
        explicit FromM(COSValue const& in)
        {
            if (in.isEmpty())
                return;
            held_.emplace(in);
            value_.emplace(held_->get());
        }

        Optional&& value() { return std::move(value_); }

    private:
        std::optional<detail::Argument<typename Optional::value_type>> held_;
        Optional value_;
    };

    template <class Optional>
    static void toHost(Optional const& value, COSValue* out)
    {
        using T = typename Optional::value_type;
        int outputCount = 1;
        if (value)
            detail::storeResult<T>(outputCount, out, [&]() -> T const& { return *value; });
        else
            *out = COSValue(host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS));
    }

    template <class Optional>
    static FromM<Optional> fromHost(COSValue const& in)
    {
        return FromM<Optional>(in);
    }

    template <class Optional>
    static char const* dataTypeText()
    {
        static std::string const text =
            detail::dataTypeTextWith(detail::dataTypeText<typename Optional::value_type>(), " or empty");
        return text.c_str();
    }

    template <class Optional>
    static consteval bool refusesNull()
    {
        return detail::refusesNull<typename Optional::value_type>();
    }

    template <class Optional>
    static consteval bool isView()
    {
        return detail::isView<typename Optional::value_type>();
    }
};

template <class T>
struct MarshalingPolicy<std::optional<T>> {
    static constexpr detail::Refusal refusal = detail::elementRefusal<T>();
    static constexpr detail::Refusal argumentRefusal = detail::argumentRefusal<T>();
    using Type = OptionalPolicy;
};

namespace detail {

/// The array of the value, if there is one.
template <class T>
    requires PassedArray<T>::any
struct PassedArray<std::optional<T>> {
    static constexpr bool any = true;

    static hvArray* of(std::optional<T> const& value) { return value ? PassedArray<T>::of(*value) : nullptr; }
};

/// The objects that the value refers to, if there is one.
template <class T>
    requires ReferredObjects<T>::any
struct ReferredObjects<std::optional<T>> {
    static constexpr bool any = true;

    static void find(std::optional<T> const& value, Enumeration<COSInterface*>& found)
    {
        if (value)
            ReferredObjects<T>::find(*value, found);
    }
};

} // namespace detail

} // namespace orbis::factory
