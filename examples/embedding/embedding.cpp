#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"

#include <array>
#include <cstdint>
#include <cstdio>

namespace host = orbis::host_extensions;

/// Loads the module orbis_factory from its file, which is named as an argument, and uses its class Adder.
int main(int count, char** words)
try {
    if (count != 2)
        return std::fputs("usage: embedding MODULE\n", stderr), 2;
    velmara::Hvm machine;
    machine.loadModule(words[1]);

    double const values[] = {2, 40};
    velmara::ArrayPtr const a(host::createMatrix(1, 1, hvDOUBLE_CLASS, &values[0]));
    velmara::ArrayPtr const b(host::createMatrix(1, 1, hvDOUBLE_CLASS, &values[1]));
    velmara::ArrayPtr const adder = machine.construct("orbis_factory.Adder");
    velmara::ArrayPtr const sum = machine.call(adder.get(), "getSum", std::array{a.get(), b.get()});
    std::printf("the sum is %d\n", *static_cast<std::int32_t const*>(host::getData(sum.get())));

    try {
        machine.get(adder.get(), "colour");
    } catch (velmara::Error const& error) {
        std::printf("refused: %s\n", error.what());
    }
    return 0; // the machine is closed here, and its modules with it
} catch (velmara::Error const& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
