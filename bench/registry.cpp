#include "bench/BenchedAdder.hpp"

#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/basic/registry.hpp"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using orbis::factory::basic::BindingRegistry;

/// Bound addresses 64 bytes apart, as objects of that size lie in memory, in a shuffled order. They share one host
/// object: the table is what is measured.
class Bindings {
public:
    explicit Bindings(std::size_t count) : storage_(count * 64), order_(count)
    {
        for (std::size_t i = 0; i < count; ++i)
            order_[i] = storage_.data() + i * 64;
        std::shuffle(order_.begin(), order_.end(), std::mt19937_64(42));
    }

    void bindAll()
    {
        orbis::COSInterface* const host = orbis::omGetArrayElement(fixture_.object.get(), 0);
        orbis::COSNameID const name(bench::adderName);
        for (char* const address : order_)
            BindingRegistry::hijack(address, address, host, name);
    }

    void releaseAll()
    {
        for (char* const address : order_)
            BindingRegistry::release(address);
    }

    std::vector<char*> const& order() const { return order_; }

private:
    bench::Fixture fixture_;
    std::vector<char> storage_;
    std::vector<char*> order_;
};

void find(benchmark::State& state)
{
    Bindings bindings(static_cast<std::size_t>(state.range(0)));
    auto const before = mallinfo2();
    bindings.bindAll();
    auto const after = mallinfo2();
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(BindingRegistry::find(bindings.order()[i]));
        if (++i == bindings.order().size())
            i = 0;
    }
    auto const bytes = (after.uordblks + after.hblkhd) - (before.uordblks + before.hblkhd);
    state.counters["bytes/binding"] = static_cast<double>(bytes) / static_cast<double>(state.range(0));
    bindings.releaseAll();
}

void bind(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Bindings bindings(static_cast<std::size_t>(state.range(0)));
        state.ResumeTiming();
        bindings.bindAll();
        state.PauseTiming();
        bindings.releaseAll();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(find)->Arg(10'000)->Arg(1'000'000)->Arg(10'000'000);
BENCHMARK(bind)->Arg(10'000)->Arg(1'000'000)->Arg(10'000'000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
