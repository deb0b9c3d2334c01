#pragma once

#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

/// The native code that every contestant binds.
namespace race {

struct Adder {
    double getSum(double a, double b)
    {
        total += a + b;
        return a + b;
    }
    double total = 0;
};

// A class for each of eight overloads.
struct Kind0 {};
struct Kind1 {};
struct Kind2 {};
struct Kind3 {};
struct Kind4 {};
struct Kind5 {};
struct Kind6 {};
struct Kind7 {};

using Kinds = std::tuple<Kind0, Kind1, Kind2, Kind3, Kind4, Kind5, Kind6, Kind7>;
inline constexpr int kindCount = std::tuple_size_v<Kinds>;

template <int number>
using Kind = std::tuple_element_t<number, Kinds>;

template <int number>
int choose(Kind<number> const*)
{
    return number;
}

inline double add(double a, double b)
{
    return a + b;
}

inline int length(std::string const& text)
{
    return static_cast<int>(text.size());
}

inline std::string name()
{
    return "twelve bytes";
}

inline Adder* self(Adder* adder)
{
    return adder;
}

inline int describe(double)
{
    return 1;
}

inline int describe(std::string const&)
{
    return 2;
}

inline int describe(Adder const*)
{
    return 3;
}

inline int count(std::vector<std::string> const& texts)
{
    return static_cast<int>(texts.size());
}

inline std::vector<std::string> names()
{
    return std::vector<std::string>(1000, "twelve bytes");
}

inline int countNumbers(std::vector<double> const& numbers)
{
    return static_cast<int>(numbers.size());
}

inline std::vector<double> const& numbers()
{
    static std::vector<double> const numbers(1'000'000, 1.5);
    return numbers;
}

inline void fail()
{
    throw std::runtime_error("failed");
}

} // namespace race
