// Objects with every kind of owner, in two virtual machines, checked against a model of the ownership rules.
#include "fuzz/Input.hpp"
#include "fuzz/require.hpp"

#include "library/lifetimes/Walk.hpp"

#include <array>
#include <utility>

namespace {

template <int Kind>
void walk(Input& input, int steps)
{
    std::string const wrong = lifetimes::Walk<Kind>([&] { return input.byte(); }).run(steps);
    require(wrong.empty(), wrong);
}

template <int... Kind>
constexpr auto walks(std::integer_sequence<int, Kind...>)
{
    return std::array{&walk<Kind>...};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static constexpr auto ofKind = walks(std::make_integer_sequence<int, lifetimes::kinds>());
    Input input(data, size);
    std::size_t const kind = input.pick(ofKind.size());
    ofKind[kind](input, static_cast<int>(size / 3));
    return 0;
}
