#include "library/lifetimes/Walk.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

template <int... K>
std::string walk(unsigned seed, std::integer_sequence<int, K...>)
{
    std::string wrong;
    static_cast<void>((... && (wrong = lifetimes::Walk<K>(std::mt19937(seed)).run(250)).empty()));
    return wrong;
}

/// `LIFETIME_WALKS` has more of them taken, from `LIFETIME_SEED` on.
TEST(Lifetimes, RandomWalksAreAsTheModelSays)
{
    char const* const first = std::getenv("LIFETIME_SEED");
    char const* const count = std::getenv("LIFETIME_WALKS");
    int seed = first ? std::atoi(first) : 1;
    for (int const end = seed + (count ? std::atoi(count) : 20); seed < end; ++seed)
        ASSERT_EQ(walk(static_cast<unsigned>(seed), std::make_integer_sequence<int, lifetimes::kinds>()), "")
            << "seed " << seed;
}

} // namespace
