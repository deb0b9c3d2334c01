#include "system/Dispatch.hpp"

#include "system/HvmState.hpp"
#include "system/Object.hpp"
#include "system/ResultValue.hpp"
#include "system/dispatchErrors.hpp"
#include "system/objectValidity.hpp"
#include "values/Array.hpp"
#include "values/hostError.hpp"

#include <algorithm>
#include <functional>
#include <memory_resource>
#include <vector>

namespace velmara {

namespace {

/// Converts the inputs for one method; false when one does not fit. `fits`, unless it is null, has room for how
/// well each explicit input fits.
bool convertFor(Method const& method, CallInputs const& call, ConvertedInputs& converted, Fit* fits)
{
    if (!takesInputs(method, call))
        return false;
    Parameter const* parameter = method.inputs.data();
    if (method.takesObject && converted.add((parameter++)->type, call.self) == noFit)
        return false;
    for (hvArray_tag* const input : call.inputs) {
        Fit const fit = converted.add((parameter++)->type, input);
        if (fit == noFit)
            return false;
        if (fits)
            *fits++ = fit;
    }
    return true;
}

struct Candidate {
    Method const* method;
    std::span<Fit const> fits;

    bool isBetterThan(Candidate const& other) const
    {
        return std::ranges::equal(fits, other.fits, std::greater_equal()) && !std::ranges::equal(fits, other.fits);
    }
};

Method const& chooseAmong(MethodGroup const& group, CallInputs const& call)
{
    std::byte buffer[1024];
    std::pmr::monotonic_buffer_resource memory(buffer, sizeof buffer);
    // A copy: conversions run native code, which may add to the group.
    std::pmr::vector<Method const*> const methods(group.methods.begin(), group.accessibleEnd(), &memory);
    std::pmr::vector<Fit> fits(methods.size() * call.inputs.size(), noFit, &memory);
    std::pmr::vector<Candidate> matching(&memory);
    matching.reserve(methods.size());
    for (std::size_t i = 0; i < methods.size(); ++i) {
        ConvertedInputs trial(capacityFor(call.inputs));
        Fit* const row = fits.data() + i * call.inputs.size();
        if (convertFor(*methods[i], call, trial, row))
            matching.push_back({methods[i], {row, call.inputs.size()}});
    }
    if (matching.empty())
        refuseNoMatch(methods, call);
    std::pmr::vector<Method const*> unbeaten(&memory);
    for (Candidate const& candidate : matching)
        if (std::ranges::none_of(matching, [&](Candidate const& other) { return other.isBetterThan(candidate); }))
            unbeaten.push_back(candidate.method);
    if (unbeaten.size() > 1)
        refuseAmbiguous(unbeaten, call);
    return *unbeaten.front();
}

} // namespace

void checkInputs(HvmState const& machine, Inputs inputs)
{
    for (hvArray_tag const* const input : inputs) {
        if (!input)
            throwHostError("VELMARA:dispatch", "nullInput");
        if (Array::of(input)->classID() == hvOBJECT_CLASS)
            for (Object const* const object : Array::of(input)->objects())
                if (object)
                    requireUsable(machine, *object);
    }
}

Method const& choose(MethodGroup const& group, CallInputs const& call, ConvertedInputs& converted)
{
    if (group.accessible == 0)
        refuseAccess(group);
    Method const& chosen = group.accessible == 1 ? *group.methods.front() : chooseAmong(group, call);
    if (!convertFor(chosen, call, converted, nullptr))
        refuseNoMatch(std::vector(group.methods.begin(), group.accessibleEnd()), call);
    if (chosen.isAbstract)
        refuseAbstract(chosen);
    return chosen;
}

ArrayPtr dispatch(HvmState const& machine, MethodGroup const& group, CallInputs const& call)
{
    checkInputs(machine, call.inputs);
    ConvertedInputs converted(capacityFor(call.inputs));
    Method const& method = choose(group, call, converted);
    ResultValue result(method.outputs.empty() ? nullptr : &method.outputs.front().type);
    int outputCount = 0;
    method.info->invoke(nullptr, outputCount, &result.slot(), converted.count(), converted.values());
    return outputCount == 0 ? nullptr : result.take(method.name->view());
}

} // namespace velmara
