#pragma once

#include "orbis/factory/FunctionDescription.hpp"
#include "orbis/factory/ParameterNames.hpp"
#include "orbis/factory/detail/members/makeRecord.hpp"
#include "orbis/factory/overload.hpp"
#include "orbis/factory/types/standardPolicies.hpp"

namespace orbis::factory {

/// Defined in withDefaults.hpp.
template <class... D>
class Defaults;

/// Describes package functions, one line each, in the form of `describe`:
///
///     publish(package, describeFunctions().function("add", &add, "a, b"));
class FunctionDescriber : public FunctionDescription {
    template <class F>
    using Traits = detail::CallableTraits<std::decay_t<F>>;

public:
    /// Adds a free function, static member function, lambda or functor, with a text for users. What a lambda
    /// captures is copied, and is one for all virtual machines.
    template <class F>
    FunctionDescriber& function(char const* name, F callable, ParameterNames<Traits<F>::arity> names = {},
                                char const* text = "")
    {
        constexpr bool isFree = Traits<F>::kind == detail::CallableKind::Free;
        static_assert(isFree, "A package function is a free function, a static member function, a lambda or "
                              "another class with one call operator; pick one of several overloads with "
                              "overload<...>().");
        if constexpr (isFree) {
            using Result = typename Traits<F>::Result;
            using Parameters = typename Traits<F>::Parameters;
            if constexpr (detail::signatureCanCross<Result>(Parameters{}) && detail::keepsNothing(Parameters{}))
                add(detail::freeFunctionRecord<typename Traits<F>::Pointer, Result, Parameters>(
                    name, callable, names.text(), MethodText(text) + MethodAttributes::Static()));
        }
        return *this;
    }

    template <class F, class... D>
    FunctionDescriber& function(char const* name, F callable, ParameterNames<Traits<F>::arity> names,
                                Defaults<D...> const& defaults, char const* text = "")
    {
        function(name, callable, names, text);
        for (MemberRecord const& shorter : defaults.template shorten<void, 0>(functions().back(), callable))
            add(shorter);
        return *this;
    }
};

inline FunctionDescriber describeFunctions()
{
    return {};
}

} // namespace orbis::factory
