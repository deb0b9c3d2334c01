#include "dispatch/Dispatch.hpp"

#include "arrays/Array.hpp"
#include "dispatch/dispatchErrors.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"
#include "objects/objectValidity.hpp"

#include <algorithm>
#include <functional>
#include <memory_resource>
#include <vector>

namespace velmara {

namespace {

struct Candidate {
    Method const* method;
    std::span<Fit const> fits;

    bool isBetterThan(Candidate const& other) const
    {
        return std::ranges::equal(fits, other.fits, std::greater_equal()) && !std::ranges::equal(fits, other.fits);
    }
};

} // namespace

void checkInputs(Machine const& machine, Inputs inputs)
{
    for (hvArray_tag const* const input : inputs) {
        if (!input)
            throwHostError("VELMARA:dispatch", "nullInput");
        if (Array::of(input)->classID() == hvOBJECT_CLASS)
            checkObjects(machine, Array::of(input)->objects());
    }
}

Method const& chooseAmong(MethodGroup const& group, CallInputs call)
{
    std::byte buffer[1024];
    std::pmr::monotonic_buffer_resource memory(buffer, sizeof buffer);
    // A copy: conversions run native code, which may add to the group.
    std::pmr::vector<Method const*> const methods(group.methods.begin(), group.accessibleEnd(), &memory);
    std::pmr::vector<Fit> fits(methods.size() * call.inputs.size(), noFit, &memory);
    std::pmr::vector<Candidate> matching(&memory);
    matching.reserve(methods.size());
    for (std::size_t i = 0; i < methods.size(); ++i) {
        ConvertedInputs trial(call.capacity());
        Fit* const row = fits.data() + i * call.inputs.size();
        if (convertFor(*methods[i], call, trial, [next = row](Fit fit) mutable { *next++ = fit; }))
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

ArrayPtr dispatchAny(MethodGroup const& group, CallInputs const& call)
{
    ConvertedInputs converted(call.capacity());
    Method const& method = choose(group, call, converted);
    return invoke(method, converted.count(), converted.values());
}

} // namespace velmara
