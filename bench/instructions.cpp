#include "bench/CallScenarios.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>

// Runs one scenario a number of times: `instructions SCENARIO COUNT`. Two runs of different counts under callgrind
// give the instructions of one call: the difference over the difference.
int main(int argc, char** argv)
{
    using Scenarios = bench::CallScenarios;
    struct Entry {
        char const* name;
        void (Scenarios::*run)(std::size_t);
    };
    constexpr Entry entries[] = {{"function", &Scenarios::function},
                                 {"member", &Scenarios::member},
                                 {"handWritten", &Scenarios::handWritten},
                                 {"dispatch", &Scenarios::dispatch},
                                 {"announce", &Scenarios::announce}};
    if (argc == 3) {
        for (Entry const& entry : entries) {
            if (std::strcmp(entry.name, argv[1]) == 0) {
                Scenarios scenarios;
                (scenarios.*entry.run)(std::strtoul(argv[2], nullptr, 10));
                std::fflush(stdout);
                std::_Exit(0); // what the end costs depends on the count, and is not asked for
            }
        }
    }
    std::fprintf(stderr, "usage: instructions function|member|handWritten|dispatch|announce COUNT\n");
    return 2;
}
