#include "dispatch/Dispatch.hpp"

#include "arrays/Array.hpp"
#include "dispatch/mismatchReason.hpp"
#include "errors/MessageCatalog.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace velmara {

namespace {

std::string describeGiven(Inputs inputs)
{
    std::string text = "(";
    for (hvArray_tag const* const input : inputs) {
        Array const& array = *Array::of(input);
        if (text.size() > 1)
            text += ", ";
        text.append(array.className()).append(" ").append(array.sizeText());
    }
    return text + ")";
}

std::string count(std::size_t number)
{
    return std::to_string(number) + (number == 1 ? " input" : " inputs");
}

std::string explain(Method const& method, CallInputs const& call)
{
    if (method.takesObject && !call.self)
        return "needs an object that it is called on";
    auto const parameters = method.explicitInputs();
    if (parameters.size() != call.inputs.size())
        return "takes " + count(parameters.size());
    if (method.takesObject && ConvertedInputs(1).addSelf(method.inputs.front().type, call.self) == notConvertible)
        return method.inputs.front().name + ": " + mismatchReason(method.inputs.front().type, call.self);
    for (std::size_t i = 0; i < parameters.size(); ++i)
        if (ConvertedInputs(1).add(parameters[i].type, call.inputs[i]) == notConvertible)
            return parameters[i].name + ": " + mismatchReason(parameters[i].type, call.inputs[i]);
    return "fits";
}

/// How many of the first inputs fit.
std::size_t countFitting(Method const& method, CallInputs const& call)
{
    auto const parameters = method.explicitInputs();
    std::size_t fitting = 0;
    while (fitting < std::min(parameters.size(), call.inputs.size()) &&
           ConvertedInputs(1).add(parameters[fitting].type, call.inputs[fitting]) != notConvertible)
        ++fitting;
    return fitting;
}

/// The few candidates nearest to the call, where there are many: those with about as many inputs, and of these the ones
/// that more of the first inputs fit.
std::vector<Method const*> nearest(std::span<Method const* const> candidates, CallInputs const& call)
{
    constexpr std::size_t many = 6, few = 3;
    if (candidates.size() < many)
        return {candidates.begin(), candidates.end()};
    using Distance = std::tuple<std::size_t, std::size_t, std::size_t>;
    std::vector<Distance> distances;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        std::size_t const taken = candidates[i]->explicitInputs().size(), given = call.inputs.size();
        distances.emplace_back(std::max(taken, given) - std::min(taken, given),
                               given - countFitting(*candidates[i], call), i);
    }
    std::ranges::sort(distances);
    std::vector<Method const*> methods;
    for (std::size_t i = 0; i < few; ++i)
        methods.push_back(candidates[std::get<2>(distances[i])]);
    return methods;
}

std::string nameOf(Method const& method)
{
    return method.name->string();
}

void refuse(Failure failure, char const* catalog, char const* key, std::vector<std::string> arguments)
{
    if (!failure)
        throwHostError(catalog, key, std::move(arguments));
    failure->emplace(std::string(catalog) + ':' + key, messageText(catalog, key, arguments));
}

} // namespace

void refuseNoMatch(std::span<Method const* const> candidates, CallInputs const& call, Failure failure)
{
    checkInputs(Machine::required(), call.inputs);
    std::vector<Method const*> const shown = nearest(candidates, call);
    std::string explained;
    for (Method const* const method : shown)
        explained += "\n  " + method->describe() + ": " + explain(*method, call);
    if (shown.size() < candidates.size())
        explained += "\n  ... and " + std::to_string(candidates.size() - shown.size()) + " more";
    refuse(failure, "VELMARA:dispatch", "noMatch",
           {nameOf(*candidates.front()), explained, describeGiven(call.inputs)});
}

void refuseAmbiguous(std::span<Method const* const> rivals, CallInputs const& call, Failure failure)
{
    std::string candidates;
    for (Method const* const method : rivals)
        candidates += "\n  " + method->describe();
    refuse(failure, "VELMARA:dispatch", "ambiguous", {nameOf(*rivals.front()), candidates, describeGiven(call.inputs)});
}

void refuseUncallable(MethodGroup const& group, CallInputs call, Failure failure)
{
    Method const& method = *group.methods.front();
    if (group.accessible == 0)
        return refuse(failure, "VELMARA:member", "access", {nameOf(method)});
    std::vector<Method const*> const candidates(group.methods.begin(), group.accessibleEnd());
    auto const isCallable = [&call](Method const* candidate) {
        ConvertedInputs trial(call.capacity());
        return convertFor(*candidate, call, trial, [](ConversionRank) {});
    };
    if (std::ranges::none_of(candidates, isCallable))
        return refuseNoMatch(candidates, call, failure);
    refuse(failure, "VELMARA:member", "abstract", {nameOf(method)});
}

} // namespace velmara
