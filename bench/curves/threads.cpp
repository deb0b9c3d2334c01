// Prints how many calls and objects a second, in millions, threads make together, each with a virtual machine of its
// own, in the best of some rounds, as other programs only slow them: `bench_threads MODULE`, from one thread to as many
// as the machine has cores.
#include "bench/curves/measuring.hpp"

#include "velmara/Hvm.hpp"

#include <barrier>
#include <chrono>
#include <cstdio>
#include <thread>

namespace {

using velmara::Hvm;
using velmara::MemberName;
using Clock = std::chrono::steady_clock;

constexpr std::size_t repetitions = 300'000;

void call(Hvm& hvm)
{
    velmara::ArrayPtr const adder = hvm.construct("curves.Adder");
    MemberName getSum("curves.Adder", "getSum");
    orbis::COSValue const inputs[] = {orbis::COSValue(1.0), orbis::COSValue(2.0)};
    Hvm::Failure failure;
    for (std::size_t i = 0; i < repetitions; ++i)
        hvm.call(adder.get(), getSum, inputs, failure);
}

void create(Hvm& hvm)
{
    MemberName cls("curves.Adder");
    Hvm::Failure failure;
    for (std::size_t i = 0; i < repetitions; ++i)
        hvm.construct(cls, {}, failure);
}

/// Millions a second of what `work` repeats, of all threads together.
double together(char const* module, unsigned count, void (*work)(Hvm&))
{
    std::barrier line(static_cast<std::ptrdiff_t>(count) + 1);
    std::vector<std::jthread> threads;
    threads.reserve(count);
    for (unsigned i = 0; i < count; ++i)
        threads.emplace_back([&] {
            Hvm hvm;
            hvm.loadModule(module);
            line.arrive_and_wait();
            work(hvm);
            line.arrive_and_wait();
        });
    line.arrive_and_wait();
    Clock::time_point const start = Clock::now();
    line.arrive_and_wait();
    std::chrono::duration<double, std::micro> const time = Clock::now() - start;
    return static_cast<double>(repetitions) * count / time.count();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return std::fputs("usage: bench_threads MODULE\n", stderr), 2;
    std::puts("threads,calls,objects");
    for (unsigned count = 1; count <= std::max(1U, std::thread::hardware_concurrency()); ++count) {
        std::vector<double> calls, objects;
        for (int round = 0; round < 40; ++round) {
            calls.push_back(together(argv[1], count, &call));
            objects.push_back(together(argv[1], count, &create));
        }
        std::printf("%u,%.3f,%.3f\n", count, std::ranges::max(calls), std::ranges::max(objects));
        std::fflush(stdout);
    }
}
