#include "bench/StringScenarios.hpp"

#include <benchmark/benchmark.h>

namespace {

using Scenarios = bench::StringScenarios;

/// Time per call and, for vectors, per string.
void run(benchmark::State& state, void (Scenarios::*scenario)(std::size_t))
{
    Scenarios scenarios(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        (scenarios.*scenario)(1);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK_CAPTURE(run, stringIn, &Scenarios::stringIn)->Arg(1);
BENCHMARK_CAPTURE(run, stringOut, &Scenarios::stringOut)->Arg(1);
BENCHMARK_CAPTURE(run, narrowVectorIn, &Scenarios::narrowVectorIn)->Arg(1'000)->Arg(100'000);
BENCHMARK_CAPTURE(run, narrowVectorOut, &Scenarios::narrowVectorOut)->Arg(1'000)->Arg(100'000);
BENCHMARK_CAPTURE(run, vectorIn, &Scenarios::vectorIn)->Arg(1'000)->Arg(100'000);
BENCHMARK_CAPTURE(run, bareVectorIn, &Scenarios::bareVectorIn)->Arg(1'000)->Arg(100'000);
BENCHMARK_CAPTURE(run, vectorOut, &Scenarios::vectorOut)->Arg(1'000)->Arg(100'000);
BENCHMARK_CAPTURE(run, bareVectorOut, &Scenarios::bareVectorOut)->Arg(1'000)->Arg(100'000);

} // namespace

BENCHMARK_MAIN();
