#pragma once

#include "orbis/factory/detail/shorterRecords.hpp"

#include <tuple>
#include <type_traits>
#include <utility>

namespace orbis::factory {

/// Values for the last parameters of a member, which callers may leave out.
template <class... D>
class Defaults {
public:
    explicit Defaults(std::tuple<D...> values) : values_(std::move(values)) {}

    /// The members to be published beside `full`, which was made of `function`: one for each number of values left out.
    /// The first parameters, as many as `Objects`, are the object that a method is called on.
    template <class T, std::size_t Objects, class F>
    std::vector<MemberRecord> shorten(MemberRecord const& full, F function) const
    {
        return detail::shorterFunctions<T, Objects>(full, function, values_);
    }

    /// The same for a constructor of `T` that takes values of the types `A`.
    template <class T, class... A>
    std::vector<MemberRecord> shortenConstructor(MemberRecord const& full) const
    {
        return detail::shorterConstructors<T, A...>(full, values_);
    }

private:
    std::tuple<D...> values_;
};

/// Gives the last parameters of a method, static method, constructor or package function default values, after the
/// names of the parameters:
///
///     .method("scale", &Shape::scale, "x, factor", withDefaults(2.0))
///
/// The member is then published with further, shorter signatures, and what a call leaves out is taken from here. The
/// values are copied, and converted to the parameters' types at each such call.
template <class... D>
Defaults<std::decay_t<D>...> withDefaults(D&&... values)
{
    return Defaults<std::decay_t<D>...>(std::tuple<std::decay_t<D>...>(std::forward<D>(values)...));
}

} // namespace orbis::factory
