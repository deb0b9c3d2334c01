#include "bench/CallScenarios.hpp"

#include <benchmark/benchmark.h>

namespace {

void run(benchmark::State& state, void (bench::CallScenarios::*scenario)(std::size_t))
{
    bench::CallScenarios scenarios;
    constexpr std::size_t batch = 1000;
    for (auto _ : state)
        (scenarios.*scenario)(batch);
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * batch));
}

BENCHMARK_CAPTURE(run, function, &bench::CallScenarios::function);
BENCHMARK_CAPTURE(run, member, &bench::CallScenarios::member);
BENCHMARK_CAPTURE(run, handWritten, &bench::CallScenarios::handWritten);
BENCHMARK_CAPTURE(run, dispatch, &bench::CallScenarios::dispatch);
BENCHMARK_CAPTURE(run, announce, &bench::CallScenarios::announce);

} // namespace

BENCHMARK_MAIN();
