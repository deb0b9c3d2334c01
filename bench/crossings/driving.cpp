// What crosses at the host's driving interface: `driving MODULE SCENARIO COUNT`. Two runs with different counts under
// callgrind give the instructions of one. The scenario "memory" prints the bytes of one of so many live objects.
#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <malloc.h>

namespace {

using velmara::ArrayPtr;
using velmara::Hvm;

ArrayPtr number(double value)
{
    return ArrayPtr(orbis::host_extensions::createMatrix(1, 1, hvDOUBLE_CLASS, &value));
}

class Crossings {
public:
    explicit Crossings(Hvm& hvm) : hvm_(hvm) {}

    /// By another of 64 names each time, so that what was found last is of no use.
    void functionByName(std::size_t count)
    {
        hvArray_tag* const inputs[] = {one_.get(), one_.get()};
        std::vector<std::string> names;
        names.reserve(64);
        for (int i = 0; i < 64; ++i)
            names.push_back("crossings.add" + std::to_string(i));
        for (std::size_t i = 0; i < count; ++i)
            hvm_.callFunction(names[i * 37 % 64], inputs);
    }

    void create(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            hvm_.construct("crossings.Adder");
    }

    void identity(std::size_t count) { call("crossings.self", adder_, count); }
    void stringIn(std::size_t count) { call("crossings.length", text_, count); }
    void overload2(std::size_t count) { call("crossings.choose2", second_, count); }
    void overload8(std::size_t count) { call("crossings.choose8", eighth_, count); }
    void overload20(std::size_t count) { call("crossings.choose", twentieth_, count); }

    void wrongType(std::size_t count)
    {
        velmara::MemberName name("crossings.length");
        orbis::COSValue const input(1.0);
        for (std::size_t i = 0; i < count; ++i) {
            Hvm::Failure failure;
            hvm_.callFunction(name, {&input, 1}, failure);
        }
    }

    void exception(std::size_t count)
    {
        velmara::MemberName name("crossings.fail");
        for (std::size_t i = 0; i < count; ++i) {
            Hvm::Failure failure;
            hvm_.callFunction(name, {}, failure);
        }
    }

    void memory(std::size_t count)
    {
        std::vector<ArrayPtr> objects(count);
        auto const bytesInUse = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
        std::size_t const before = bytesInUse();
        for (ArrayPtr& object : objects)
            object = hvm_.construct("crossings.Adder");
        std::printf("%zu\n", (bytesInUse() - before) / count);
        std::fflush(stdout);
    }

private:
    void call(char const* function, ArrayPtr const& input, std::size_t count)
    {
        hvArray_tag* const inputs[] = {input.get()};
        for (std::size_t i = 0; i < count; ++i)
            hvm_.callFunction(function, inputs);
    }

    Hvm& hvm_;
    ArrayPtr adder_ = hvm_.construct("crossings.Adder");
    ArrayPtr second_ = hvm_.construct("crossings.Kind1");
    ArrayPtr eighth_ = hvm_.construct("crossings.Kind7");
    ArrayPtr twentieth_ = hvm_.construct("crossings.Kind19");
    ArrayPtr text_ = ArrayPtr(orbis::host_extensions::createText(u"twelve bytes"));
    ArrayPtr one_ = number(1);
};

} // namespace

int main(int argc, char** argv)
{
    struct Scenario {
        char const* name;
        void (Crossings::*run)(std::size_t);
    };
    constexpr Scenario scenarios[] = {{"functionByName", &Crossings::functionByName},
                                      {"create", &Crossings::create},
                                      {"identity", &Crossings::identity},
                                      {"stringIn", &Crossings::stringIn},
                                      {"overload2", &Crossings::overload2},
                                      {"overload8", &Crossings::overload8},
                                      {"overload20", &Crossings::overload20},
                                      {"wrongType", &Crossings::wrongType},
                                      {"exception", &Crossings::exception},
                                      {"memory", &Crossings::memory}};
    Hvm hvm;
    for (Scenario const& scenario : scenarios) {
        if (argc != 4 || std::strcmp(scenario.name, argv[2]) != 0)
            continue;
        hvm.loadModule(argv[1]);
        Crossings crossings(hvm);
        (crossings.*scenario.run)(std::strtoul(argv[3], nullptr, 10));
        std::_Exit(0); // excludes the end, whose cost depends on the count
    }
    std::fprintf(stderr, "usage: driving MODULE SCENARIO COUNT\n");
    return 2;
}
