#include "bench/BenchedAdder.hpp"

#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

namespace {

using orbis::factory::basic::BindingRegistry;

/// Bound addresses, 64 bytes apart like objects of that size, in shuffled order. They share one host object, because
/// only the table is measured.
class Bindings {
public:
    explicit Bindings(std::size_t count) : storage_(count * 64), order_(count)
    {
        for (std::size_t i = 0; i < count; ++i)
            order_[i] = storage_.data() + i * 64;
        std::shuffle(order_.begin(), order_.end(), std::mt19937_64(42));
    }

    void bind() const
    {
        orbis::COSInterface* const host = orbis::omGetArrayElement(fixture_.object.get(), 0);
        for (char* const address : order_)
            BindingRegistry::hijack(address, address, host, name_);
    }

    void find() const
    {
        for (char* const address : order_)
            benchmark::DoNotOptimize(BindingRegistry::find(address));
    }

    /// Passes each object to the host, like the result of a call.
    void giveBack() const
    {
        for (char* const address : order_)
            hvDestroyArray(BindingRegistry::announce(address, name_));
    }

    void release() const
    {
        for (char* const address : order_)
            BindingRegistry::release(address);
    }

private:
    bench::Fixture fixture_;
    orbis::COSNameID name_{bench::adderName};
    std::vector<char> storage_;
    std::vector<char*> order_;
};

double bytesInUse()
{
    auto const memory = mallinfo2();
    return static_cast<double>(memory.uordblks + memory.hblkhd);
}

/// Measures each operation, in nanoseconds, and the size of a binding, in bytes, with a given number of live bindings.
void live(benchmark::State& state)
{
    struct Step {
        char const* name;
        void (Bindings::*run)() const;
    };
    auto const count = static_cast<double>(state.range(0));
    for (auto _ : state) {
        Bindings const bindings(static_cast<std::size_t>(state.range(0)));
        double const before = bytesInUse();
        for (auto const& [name, run] : {Step{"bind", &Bindings::bind}, Step{"find", &Bindings::find},
                                        Step{"return", &Bindings::giveBack}, Step{"release", &Bindings::release}}) {
            auto const start = std::chrono::steady_clock::now();
            (bindings.*run)();
            std::chrono::duration<double, std::nano> const time = std::chrono::steady_clock::now() - start;
            if (run == &Bindings::bind)
                state.counters["bytes"] += (bytesInUse() - before) / count;
            state.counters[name] += time.count() / count;
        }
    }
    for (auto& [name, counter] : state.counters)
        counter.flags = benchmark::Counter::kAvgIterations;
}

BENCHMARK(live)->Arg(10'000)->Iterations(100);
BENCHMARK(live)->Arg(1'000'000)->Iterations(3);
BENCHMARK(live)->Arg(10'000'000)->Iterations(1);

} // namespace

BENCHMARK_MAIN();
