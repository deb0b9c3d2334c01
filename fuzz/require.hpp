#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

/// Aborts the run, which the fuzzer reports as a finding, if `isRight` is false.
inline void require(bool isRight, std::string const& what)
{
    if (isRight)
        return;
    std::fprintf(stderr, "%s\n", what.c_str());
    std::abort();
}
