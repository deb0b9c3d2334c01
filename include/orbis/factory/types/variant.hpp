#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/elements.hpp"

#include "host_extensions/host_extensions.hpp"

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace orbis::factory {

/// `std::monostate`: no value, "[]".
class MonostatePolicy {};

template <>
class Marshaler<MonostatePolicy> : public detail::DataTypeName<Marshaler<MonostatePolicy>> {
public:
    template <class T>
    static void toHost(T, hvArray** out)
    {
        *out = host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS);
    }

    template <class T>
    static T fromHost(hvArray_tag const* in)
    {
        if (!detail::isNothing(in))
            detail::throwNotConvertible("needs no value");
        return {};
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "any";
    }
};

template <>
struct MarshalingPolicy<std::monostate> {
    using Type = MonostatePolicy;
};

/// `std::variant` of types that cross. A value is marshaled as its alternative. From the host it takes the first
/// alternative to which the value converts, but an alternative of the value's own kind before others: a logical becomes
/// a `bool`, a double a `double`. The error says why each alternative does not take the value.
class VariantPolicy {};

template <>
class Marshaler<VariantPolicy> : public detail::DataTypeName<Marshaler<VariantPolicy>> {
    template <class Variant>
    using Indices = std::make_index_sequence<std::variant_size_v<Variant>>;

public:
    template <class Variant, class V>
    static void toHost(V&& value, hvArray** out)
    {
        *out = std::visit(
            []<class A>(A&& held) { return detail::elementToHost<std::remove_cvref_t<A>>(std::forward<A>(held)); },
            std::forward<V>(value));
    }

    template <class Variant>
    static Variant fromHost(hvArray_tag const* in)
    {
        std::optional<Variant> value;
        std::string reasons;
        [&]<std::size_t... Index>(std::index_sequence<Index...>) {
            for (int exactness = 2; !value && exactness >= 0; --exactness)
                (readAs<Index>(in, exactness, value, reasons), ...);
        }(Indices<Variant>());
        if (!value)
            detail::throwNotConvertible("it fits none of the alternatives (" + reasons + ')');
        return *std::move(value);
    }

    template <class Variant>
    static constexpr char const* dataTypeText()
    {
        return "any";
    }

    template <class Variant>
    static consteval bool isView()
    {
        return []<std::size_t... Index>(std::index_sequence<Index...>) {
            return (detail::isView<std::variant_alternative_t<Index, Variant>>() || ...);
        }(Indices<Variant>());
    }

private:
    template <std::size_t Index, class Variant>
    static void readAs(hvArray_tag const* in, int exactness, std::optional<Variant>& value, std::string& reasons)
    {
        using Alternative = std::variant_alternative_t<Index, Variant>;
        if (value || detail::ElementType(detail::dataTypeText<Alternative>()).exactness(in) != exactness)
            return;
        try {
            value.emplace(std::in_place_index<Index>, detail::ElementReader<Alternative>().read(in));
        } catch (...) {
            reasons += (reasons.empty() ? "" : "; ") + detail::reasonOfCurrentException();
        }
    }
};

template <class... T>
struct MarshalingPolicy<std::variant<T...>> : detail::ElementRefusals<T...> {
    using Type = VariantPolicy;
};

} // namespace orbis::factory
