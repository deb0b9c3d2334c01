#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/detail/members/defaultedOverloads.hpp"

#include <tuple>
#include <type_traits>
#include <utility>

namespace orbis::factory {

namespace detail {

/// Returns why a default value, of the type as which the author passes it, cannot be stored, or `None`.
template <class D>
consteval Refusal keptDefaultRefusal()
{
    using Kept = std::decay_t<D>;
    using Given = std::remove_reference_t<D>;
    using Target = std::remove_cv_t<std::remove_pointer_t<Kept>>;
    constexpr bool isLiteral = std::is_array_v<Given> && std::is_const_v<std::remove_extent_t<Given>>;
    constexpr bool isBarePointer = std::is_pointer_v<Kept> && std::is_object_v<Target> && !PublishedClass<Target>;
    if constexpr (isLiteral)
        return Refusal::None;
    else if constexpr (isBarePointer)
        return Refusal::DefaultView;
    else if constexpr (HasPolicy<Kept>)
        return isView<Kept>() ? Refusal::DefaultView : Refusal::None;
    else
        return Refusal::None;
}

} // namespace detail

/// Default values of the last parameters of a member.
template <class... D>
class Defaults {
public:
    explicit Defaults(std::tuple<D...> values) : values_(std::move(values)) {} ///< see `withDefaults`

    /// Returns the overloads to publish beside `full`, the record of `function`: one for each number of omitted
    /// arguments. The first `Objects` parameters are the object that a method is called on.
    template <class T, std::size_t Objects, class F>
    std::vector<MemberRecord> shorten(MemberRecord const& full, F function) const
    {
        return detail::defaultedFunctions<T, Objects>(full, function, values_);
    }

    /// The same for a constructor of `T` with the parameter types `A`.
    template <class T, class... A>
    std::vector<MemberRecord> shortenConstructor(MemberRecord const& full) const
    {
        return detail::defaultedConstructors<T, A...>(full, values_);
    }

private:
    std::tuple<D...> values_;
};

/// Gives default values to the last parameters of a method, static method, constructor or package function. Passed
/// after the parameter names:
///
///     .method("scale", &Shape::scale, "x, factor", withDefaults(2.0))
///
/// The member is published with additional, shorter signatures, whose calls take the omitted arguments from here. The
/// values are copied, and converted to the parameters' types in each such call. Views and pointers are rejected, except
/// for string literals.
template <class... D>
Defaults<std::decay_t<D>...> withDefaults(D&&... values)
{
    constexpr detail::Refusal refusal = detail::firstRefusal(detail::keptDefaultRefusal<D>()...);
    if constexpr (refusal != detail::Refusal::None)
        detail::refuse<refusal>();
    return Defaults<std::decay_t<D>...>(std::tuple<std::decay_t<D>...>(std::forward<D>(values)...));
}

} // namespace orbis::factory
