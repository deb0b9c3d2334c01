#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/descriptors/FunctionInfo.hpp"
#include "orbis/factory/types/NumericSpanPolicy.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"

#include "velmara/ArrayPtr.hpp"
#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

namespace {

using namespace orbis::factory;
using orbis::COSValue;

constexpr std::size_t million = 1'000'000;
std::vector<double> numbers(million, 1.5);

void takeVector(std::vector<double> const& values)
{
    benchmark::DoNotOptimize(values.data());
}

void takeSpan(std::span<double const> values)
{
    benchmark::DoNotOptimize(values.data());
}

std::vector<double> const& giveVector()
{
    return numbers;
}

/// Calls a function through its `FunctionInfo`, like the host, and destroys the result.
template <class F>
void call(benchmark::State& state, F function)
{
    velmara::Hvm hvm;
    velmara::Hvm::Scope const scope(hvm);
    FunctionInfo info("f", {});
    auto const description = describeFunctions().function("f", function);
    info.method().invoker().invokeFn = description.functions()[0].invokeFn;
    info.method().invoker().setTarget(description.functions()[0].target);
    velmara::ArrayPtr const input(orbis::host_extensions::createMatrix(1, million, hvDOUBLE_CLASS, numbers.data()));
    COSValue const given(input.get());
    for (auto _ : state) {
        int outputCount = 1;
        COSValue output;
        info.invoke(nullptr, outputCount, &output, 1, &given);
        hvDestroyArray(output.array());
    }
}

/// The lower bound for every implementation: an allocation and one copy.
void copy(benchmark::State& state)
{
    for (auto _ : state) {
        std::unique_ptr<double[]> const copied(new double[million]);
        std::memcpy(copied.get(), numbers.data(), million * sizeof(double));
        benchmark::DoNotOptimize(copied.get());
    }
}

BENCHMARK(copy)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(call, vectorIn, &takeVector)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(call, vectorOut, &giveVector)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(call, spanIn, &takeSpan)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
