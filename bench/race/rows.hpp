#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace race {

/// What one row does `count` times.
template <class Contestant>
struct Row {
    char const* name;
    void (Contestant::*run)(std::size_t count);
};

/// Runs the named row and prints the seconds of processor time. Does not return: the end of the program is excluded, as
/// its cost depends on the count.
template <class Contestant, std::size_t size>
[[noreturn]] void runRow(Contestant& contestant, Row<Contestant> const (&rows)[size], char const* name,
                         char const* count)
{
    for (Row<Contestant> const& row : rows) {
        if (std::strcmp(row.name, name) != 0)
            continue;
        std::clock_t const start = std::clock();
        (contestant.*row.run)(std::strtoul(count, nullptr, 10));
        std::printf("%.9f\n", static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
        std::fflush(stdout);
        std::_Exit(0);
    }
    std::fprintf(stderr, "there is no row %s\n", name);
    std::_Exit(2);
}

/// Fails where a row did not do what it is for.
inline void require(bool isDone)
{
    if (!isDone) {
        std::fputs("a row failed\n", stderr);
        std::_Exit(1);
    }
}

/// The compiler takes the value to be used.
template <class T>
void use(T const& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

} // namespace race
