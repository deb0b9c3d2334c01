#pragma once

#include "orbis/factory/detail/arrays/PassedArray.hpp"

#include <cstddef>
#include <tuple>
#include <utility>

namespace orbis::factory::detail {

/// A callable (`NoFunction` for a constructor) and the default values of its last parameters.
template <class Function, class... D>
struct Defaulted {
    Function function;
    std::tuple<D...> values;
};

/// Calls functions with the given arguments followed by the last `Omitted` values of a `Defaulted`. Its only member is
/// a pointer to that, so a `Callable` that holds the pointer can be read as this class.
template <class Record, std::size_t Omitted>
struct DefaultedCall {
    static constexpr bool hasValues = true;

    Record const* record;

    /// Calls the record's function. For a member function, the object is the first argument.
    template <class... Given>
    decltype(auto) operator()(Given&&... given) const
    {
        return call(record->function, std::forward<Given>(given)...);
    }

    /// Wraps any other function so that it is called with the omitted arguments appended.
    template <class F>
    auto complete(F function) const
    {
        return [this, function](auto&&... given) -> decltype(auto) {
            return this->call(function, static_cast<decltype(given)>(given)...);
        };
    }

    /// Returns whether one of the values carries this array.
    bool givesArray(hvArray const* array) const
    {
        auto const carries = [=]<class D>([[maybe_unused]] D const& value) {
            if constexpr (PassedArray<D>::any)
                return PassedArray<D>::of(value) == array;
            else
                return false;
        };
        return std::apply([&](auto const&... value) { return (carries(value) || ...); }, record->values);
    }

private:
    template <class F, class... Given>
    decltype(auto) call(F const& function, Given&&... given) const
    {
        constexpr std::size_t first = std::tuple_size_v<decltype(Record::values)> - Omitted;
        return [&]<std::size_t... Index>(std::index_sequence<Index...>) -> decltype(auto) {
            return invoke(function, std::forward<Given>(given)..., std::get<first + Index>(record->values)...);
        }(std::make_index_sequence<Omitted>());
    }

    /// `std::invoke` without `<functional>`, for functions only.
    template <class F, class... A>
    static decltype(auto) invoke(F const& function, A&&... arguments)
    {
        if constexpr (std::is_member_function_pointer_v<F>)
            return invokeMember(function, std::forward<A>(arguments)...);
        else
            return function(std::forward<A>(arguments)...);
    }

    template <class F, class T, class... A>
    static decltype(auto) invokeMember(F function, T* object, A&&... arguments)
    {
        return (object->*function)(std::forward<A>(arguments)...);
    }
};

} // namespace orbis::factory::detail
