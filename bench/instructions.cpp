#include "bench/CallScenarios.hpp"
#include "bench/EnumerationScenarios.hpp"
#include "bench/OwnershipScenarios.hpp"
#include "bench/PropertyScenarios.hpp"
#include "bench/StringScenarios.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

/// Runs a scenario, which is a member function of its class.
template <auto scenario, auto... arguments, class Scenarios>
void runMember(void (Scenarios::*)(std::size_t), std::size_t count)
{
    Scenarios scenarios(arguments...);
    (scenarios.*scenario)(count);
    std::fflush(stdout);
    std::_Exit(0); // excludes destruction, whose cost depends on the count
}

template <auto scenario, auto... arguments>
void run(std::size_t count)
{
    runMember<scenario, arguments...>(scenario, count);
}

} // namespace

// Runs one scenario COUNT times: `instructions SCENARIO COUNT`. Two runs with different counts under callgrind give the
// instructions per call: the difference of the totals divided by that of the counts.
int main(int argc, char** argv)
{
    using Calls = bench::CallScenarios;
    using Enumerations = bench::EnumerationScenarios;
    using Properties = bench::PropertyScenarios;
    using Strings = bench::StringScenarios;
    struct Entry {
        char const* name;
        void (*run)(std::size_t);
    };
    constexpr Entry entries[] = {{"function", run<&Calls::function>},
                                 {"member", run<&Calls::member>},
                                 {"handWritten", run<&Calls::handWritten>},
                                 {"dispatch", run<&Calls::dispatch>},
                                 {"announce", run<&Calls::announce>},
                                 {"enumeratorIn", run<&Enumerations::enumeratorIn>},
                                 {"objectIn", run<&Enumerations::objectIn>},
                                 {"enumeratorOut", run<&Enumerations::enumeratorOut>},
                                 {"objectOut", run<&Enumerations::objectOut>},
                                 {"callWithObject", run<&Enumerations::callWithObject>},
                                 {"callWithEnumerator", run<&Enumerations::callWithEnumerator>},
                                 {"callWithName", run<&Enumerations::callWithName>},
                                 {"callWithNumber", run<&Enumerations::callWithNumber>},
                                 {"construct", run<&Calls::construct>},
                                 {"allocate", run<&Calls::allocate>},
                                 {"createValue", run<&bench::ownership::Values::create>},
                                 {"createWrappable", run<&bench::ownership::Wrappables::create>},
                                 {"createShareable", run<&bench::ownership::BoostShareds::create>},
                                 {"createStdShareable", run<&bench::ownership::StdShareds::create>},
                                 {"get", run<&Properties::get>},
                                 {"handWrittenGet", run<&Properties::handWrittenGet>},
                                 {"set", run<&Properties::set>},
                                 {"handWrittenSet", run<&Properties::handWrittenSet>},
                                 {"getByName", run<&Properties::getByName>},
                                 {"setByName", run<&Properties::setByName>},
                                 {"stringIn", run<&Strings::stringIn, 1>},
                                 {"stringOut", run<&Strings::stringOut, 1>},
                                 {"narrowVectorIn", run<&Strings::narrowVectorIn, 1000>},
                                 {"narrowVectorOut", run<&Strings::narrowVectorOut, 1000>},
                                 {"vectorIn", run<&Strings::vectorIn, 1000>},
                                 {"bareVectorIn", run<&Strings::bareVectorIn, 1000>},
                                 {"vectorOut", run<&Strings::vectorOut, 1000>},
                                 {"bareVectorOut", run<&Strings::bareVectorOut, 1000>}};
    for (Entry const& entry : entries) {
        if (argc == 3 && std::strcmp(entry.name, argv[1]) == 0)
            entry.run(std::strtoul(argv[2], nullptr, 10));
    }
    std::fprintf(stderr, "usage: instructions SCENARIO COUNT\nscenarios:");
    for (Entry const& entry : entries)
        std::fprintf(stderr, " %s", entry.name);
    std::fprintf(stderr, "\n");
    return 2;
}
