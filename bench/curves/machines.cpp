// Prints what a virtual machine costs beside others that live: `bench_machines MODULE`. Each has the module and an
// object; the calls go to one machine after the other.
#include "bench/curves/measuring.hpp"

#include "velmara/Hvm.hpp"

#include <cstdio>
#include <memory>

namespace {

using velmara::ArrayPtr;
using velmara::Hvm;
using velmara::MemberName;

/// A virtual machine, and what is called in it.
struct Machine {
    explicit Machine(char const* module)
    {
        hvm.loadModule(module);
        adder = hvm.construct("curves.Adder");
    }

    void call()
    {
        orbis::COSValue const inputs[] = {orbis::COSValue(1.0), orbis::COSValue(2.0)};
        hvm.call(adder.get(), getSum, inputs, failure);
    }

    Hvm hvm;
    ArrayPtr adder;
    MemberName getSum{"curves.Adder", "getSum"};
    Hvm::Failure failure;
};

void measure(char const* module, std::size_t count)
{
    double const before = bench::bytesInUse();
    std::vector<std::unique_ptr<Machine>> machines(count);
    double const create = bench::timeOfOne(count, [&](std::size_t) {
        for (auto& machine : machines)
            machine = std::make_unique<Machine>(module);
    });
    double const bytes = (bench::bytesInUse() - before) / static_cast<double>(count);
    double const call = bench::medianOfOne(100'000, [&](std::size_t calls) {
        for (std::size_t i = 0; i < calls; ++i)
            machines[i % count]->call();
    });
    double const close = bench::timeOfOne(count, [&](std::size_t) { machines.clear(); });
    std::printf("%zu,%.1f,%.1f,%.1f,%.0f\n", count, create, close, call, bytes);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return std::fputs("usage: bench_machines MODULE\n", stderr), 2;
    std::puts("machines,create,close,call,bytes");
    Machine const loaded(argv[1]); // so that the module's file is mapped from the first on
    for (std::size_t const count : {1, 3, 10, 30, 100, 300, 1'000})
        measure(argv[1], count);
}
