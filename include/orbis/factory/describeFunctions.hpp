#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/FunctionDescription.hpp"
#include "orbis/factory/ParameterNames.hpp"
#include "orbis/factory/detail/members/makeRecord.hpp"
#include "orbis/factory/detail/members/memberChecks.hpp"
#include "orbis/factory/overload.hpp"
#include "orbis/factory/types/standardPolicies.hpp"

namespace orbis::factory {

// Defined in withDefaults.hpp.
template <class... D>
class Defaults;

/// Describes package functions, one line each, in the form of `describe`:
///
///     publish(package, describeFunctions().function("add", &add, "a, b"));
class FunctionDescriber : public FunctionDescription {
    template <class F>
    using Traits = detail::CallableTraits<std::decay_t<F>>;

    using Refusal = detail::Refusal;

public:
    /// Adds a free function, static member function, lambda or functor, with a text for users. What a lambda
    /// captures is copied, and is one for all virtual machines.
    template <class F>
    FunctionDescriber& function(char const* name, F callable, ParameterNames<Traits<F>::arity> names = {},
                                char const* text = "")
    {
        constexpr Refusal refusal = detail::packageFunctionRefusal<std::decay_t<F>>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, F>();
        else
            add(detail::freeFunctionRecord<typename Traits<F>::Pointer, typename Traits<F>::Result,
                                           typename Traits<F>::Parameters>(
                name, callable, names.text(), MethodText(text) + MethodAttributes::Static()));
        return *this;
    }

    /// The same, with default values of the last parameters: `withDefaults(...)`.
    template <class F, class... D>
    FunctionDescriber& function(char const* name, F callable, ParameterNames<Traits<F>::arity> names,
                                Defaults<D...> const& defaults, char const* text = "")
    {
        constexpr Refusal refusal = detail::firstRefusal(detail::packageFunctionRefusal<std::decay_t<F>>(),
                                                         detail::defaultsRefusalOf<std::decay_t<F>, 0, D...>());
        if constexpr (refusal != Refusal::None) {
            detail::refuse<refusal, F, D...>();
        } else {
            function(name, callable, names, text);
            add(defaults.template shorten<void, 0>(functions().back(), callable));
        }
        return *this;
    }

    /// Chosen for what is no function.
    template <class None = void>
    auto& function(char const*, ...)
    {
        static_assert(detail::isNothing<None>(), "This describes no function: of several overloads pick one with "
                                                 "overload<...>().");
        return *this;
    }
};

/// Begins the description of package functions.
inline FunctionDescriber describeFunctions()
{
    return {};
}

} // namespace orbis::factory
