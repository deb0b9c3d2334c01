#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

/// Ends the run, as a finding, where `isRight` is false.
inline void require(bool isRight, std::string const& what)
{
    if (isRight)
        return;
    std::fprintf(stderr, "%s\n", what.c_str());
    std::abort();
}
