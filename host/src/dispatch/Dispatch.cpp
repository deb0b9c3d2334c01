#include "dispatch/Dispatch.hpp"

#include "arrays/Array.hpp"
#include "dispatch/directRank.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"

#include <algorithm>
#include <functional>
#include <memory_resource>
#include <vector>

namespace velmara {

namespace {

struct Candidate {
    Method const* method;
    std::span<ConversionRank const> ranks;

    bool isBetterThan(Candidate const& other) const
    {
        return std::ranges::equal(ranks, other.ranks, std::greater_equal()) && !std::ranges::equal(ranks, other.ranks);
    }
};

/// The only method that may be called and is wanted; null when there are several, or none.
template <class Predicate>
Method const* findOnly(MethodGroup const& group, Predicate const& isWanted)
{
    Method const* found = nullptr;
    for (std::size_t i = 0; i < group.accessible; ++i)
        if (isWanted(*group.methods[i])) {
            if (found)
                return nullptr;
            found = group.methods[i];
        }
    return found;
}

/// Whether each input fits exactly. The inputs were checked.
bool fitsExactly(Method const& method, CallInputs const& call)
{
    if (!takesInputs(method, call))
        return false;
    Parameter const* parameter = method.inputs.data();
    if (method.takesObject && (parameter++)->type.name != Array::of(call.self)->objectClass())
        return false;
    auto const isExact = [&](hvArray_tag* input) {
        TypeReference const& type = (parameter++)->type;
        orbis::COSValue value;
        return exactRank == (type.kind == TypeKind::Scalar ? type.scalar.read(*Array::of(input), value)
                                                           : directRank(type, *Array::of(input)));
    };
    return std::ranges::all_of(call.inputs, isExact);
}

} // namespace

void checkInputs(Machine const& machine, Inputs inputs)
{
    for (hvArray_tag const* const input : inputs) {
        if (!input)
            throwHostError("VELMARA:dispatch", "nullInput");
        if (Array::of(input)->classID() == hvOBJECT_CLASS)
            Object::requireUsable(machine, Array::of(input)->objects());
    }
}

Method const* chooseAmong(MethodGroup const& group, CallInputs call, Failure failure)
{
    if (group.accessible == 0) {
        refuseUncallable(group, call, failure);
        return nullptr;
    }
    if (auto const* only = findOnly(group, [&](Method const& method) { return takesInputs(method, call); }))
        return only;
    checkInputs(Machine::required(), call.inputs);
    if (auto const* only = findOnly(group, [&](Method const& method) { return fitsExactly(method, call); }))
        return only; // none fits better
    std::byte buffer[1024];
    std::pmr::monotonic_buffer_resource memory(buffer, sizeof buffer);
    // A copy: conversions run native code, which may add to the group.
    std::pmr::vector<Method const*> const methods(group.methods.begin(), group.accessibleEnd(), &memory);
    std::pmr::vector<ConversionRank> ranks(methods.size() * call.inputs.size(), notConvertible, &memory);
    std::pmr::vector<Candidate> matching(&memory);
    matching.reserve(methods.size());
    for (std::size_t i = 0; i < methods.size(); ++i) {
        ConvertedInputs trial(call.capacity());
        ConversionRank* const row = ranks.data() + i * call.inputs.size();
        if (convertFor(*methods[i], call, trial, [next = row](ConversionRank rank) mutable { *next++ = rank; }))
            matching.push_back({methods[i], {row, call.inputs.size()}});
    }
    if (matching.empty()) {
        refuseNoMatch(methods, call, failure);
        return nullptr;
    }
    std::pmr::vector<Method const*> unbeaten(&memory);
    for (Candidate const& candidate : matching)
        if (std::ranges::none_of(matching, [&](Candidate const& other) { return other.isBetterThan(candidate); }))
            unbeaten.push_back(candidate.method);
    if (unbeaten.size() == 1)
        return unbeaten.front();
    refuseAmbiguous(unbeaten, call, failure);
    return nullptr;
}

Value dispatchArrays(MethodGroup const& group, CallInputs const& call, Failure failure)
{
    ConvertedInputs converted(call.capacity());
    Method const* const method = choose(group, call, converted, failure);
    return method ? invoke(*method, converted.count(), converted.values()) : Value();
}

Value dispatchArrays(MethodGroup const& group, hvArray_tag* self, std::span<orbis::COSValue const> inputs,
                     Failure failure)
{
    InputArrays const arrays(inputs);
    return dispatchArrays(group, {self, arrays.get()}, failure);
}

} // namespace velmara
