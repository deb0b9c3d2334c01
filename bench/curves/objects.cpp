// Prints what one object costs beside many that live: `bench_objects MODULE`. Times are of one object, in nanoseconds.
#include "bench/curves/measuring.hpp"

#include "velmara/Hvm.hpp"

#include <cstdio>
#include <numeric>
#include <random>

namespace {

using velmara::ArrayPtr;
using velmara::Hvm;
using velmara::MemberName;

std::vector<std::size_t> shuffled(std::size_t count)
{
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), std::mt19937_64(42));
    return order;
}

/// Creates so many objects, calls and destroys them in another order, and prints a row. Few are created several times.
void measure(Hvm& hvm, std::size_t count)
{
    MemberName cls("curves.Adder");
    MemberName getSum("curves.Adder", "getSum");
    orbis::COSValue const inputs[] = {orbis::COSValue(1.0), orbis::COSValue(2.0)};
    Hvm::Failure failure;
    std::vector<std::size_t> const order = shuffled(count);
    std::vector<ArrayPtr> objects(count);
    std::vector<double> create, call, destroy;
    double bytes = 0;
    for (std::size_t rounds = std::clamp<std::size_t>(1'000'000 / count, 1, 100); rounds > 0; --rounds) {
        double const before = bench::bytesInUse();
        create.push_back(bench::timeOfOne(count, [&](std::size_t) {
            for (ArrayPtr& object : objects)
                object = hvm.construct(cls, {}, failure);
        }));
        bytes = std::max(bytes, (bench::bytesInUse() - before) / static_cast<double>(count));
        call.push_back(bench::timeOfOne(count, [&](std::size_t) {
            for (std::size_t const i : order)
                hvm.call(objects[i].get(), getSum, inputs, failure);
        }));
        destroy.push_back(bench::timeOfOne(count, [&](std::size_t) {
            for (std::size_t const i : order)
                objects[i].reset();
        }));
    }
    std::printf("%zu,%.1f,%.1f,%.1f,%.1f\n", count, bench::median(create), bench::median(call), bench::median(destroy),
                bytes);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return std::fputs("usage: bench_objects MODULE\n", stderr), 2;
    std::puts("live,create,call,destroy,bytes");
    for (std::size_t count = 1'000; count <= 10'000'000; count *= 10) {
        Hvm hvm; // a new one, so that none has the memory of the others
        hvm.loadModule(argv[1]);
        measure(hvm, count);
    }
}
