// Prints the time of a call that passes a string or an array, by its size: `bench_sizes MODULE strings|arrays`. Times
// are of one call, in nanoseconds.
#include "bench/curves/measuring.hpp"

#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace {

using orbis::COSValue;
using velmara::ArrayPtr;
using velmara::Hvm;
using velmara::MemberName;

class Sizes {
public:
    explicit Sizes(Hvm& hvm) : hvm_(hvm) {}

    void strings()
    {
        std::puts("characters,in,out");
        for (std::size_t size = 1; size <= 1'000'000; size *= 10) {
            ArrayPtr const text(orbis::host_extensions::createText(std::u16string(size, u'a')));
            std::printf("%zu,%.1f,%.1f\n", size, time(length_, COSValue(text.get()), size), timeOut(textOf_, size));
        }
    }

    /// Beside them an allocation and one copy of the numbers, which every implementation needs.
    void arrays()
    {
        std::puts("doubles,in,out,copy");
        for (std::size_t size = 1; size <= 10'000'000; size *= 10) {
            std::vector<double> const numbers(size, 1.5);
            ArrayPtr const array(orbis::host_extensions::createMatrix(1, size, hvDOUBLE_CLASS, numbers.data()));
            std::printf("%zu,%.1f,%.1f,%.1f\n", size, time(count_, COSValue(array.get()), size),
                        timeOut(numbersOf_, size), bench::medianOfOne(repetitions(size), [&](std::size_t count) {
                            for (std::size_t i = 0; i < count; ++i)
                                copy(numbers);
                        }));
        }
    }

private:
    static std::size_t repetitions(std::size_t size) { return std::clamp<std::size_t>(20'000'000 / size, 5, 20'000); }

    [[gnu::noipa]] static void keep(void const*) {}
    static void copy(std::vector<double> const& numbers)
    {
        std::unique_ptr<double[]> const copied(new double[numbers.size()]);
        std::memcpy(copied.get(), numbers.data(), numbers.size() * sizeof(double));
        keep(copied.get());
    }

    double timeOut(MemberName& function, std::size_t size)
    {
        return time(function, COSValue(static_cast<double>(size)), size);
    }

    double time(MemberName& function, COSValue const& input, std::size_t size)
    {
        return bench::medianOfOne(repetitions(size), [&](std::size_t count) {
            Hvm::Failure failure;
            for (std::size_t i = 0; i < count; ++i)
                hvm_.callFunction(function, {&input, 1}, failure);
            if (failure)
                throw *failure;
        });
    }

    Hvm& hvm_;
    MemberName length_{"curves.length"};
    MemberName textOf_{"curves.textOf"};
    MemberName count_{"curves.count"};
    MemberName numbersOf_{"curves.numbersOf"};
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return std::fputs("usage: bench_sizes MODULE strings|arrays\n", stderr), 2;
    Hvm hvm;
    hvm.loadModule(argv[1]);
    Sizes sizes(hvm);
    if (std::strcmp(argv[2], "strings") == 0)
        sizes.strings();
    else
        sizes.arrays();
}
