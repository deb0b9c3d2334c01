// Lists of parameter names, and signatures created from them.
#include "fuzz/Input.hpp"
#include "fuzz/require.hpp"

#include "orbis/factory/descriptors/ParameterNamer.hpp"

#include <algorithm>
#include <vector>

namespace {

std::vector<std::string> split(std::string const& names)
{
    std::vector<std::string> pieces(1);
    for (char const c : names) {
        if (c == ',')
            pieces.emplace_back();
        else
            pieces.back() += c;
    }
    return pieces;
}

void check(orbis::factory::ParameterNamer const& namer, bool isList, std::string const& names)
{
    std::vector<std::string> const pieces = isList ? split(names) : std::vector<std::string>();
    bool const isEmpty = pieces.empty() || (pieces.size() == 1 && pieces.front().empty());
    for (unsigned i = 1; i <= 23; ++i) {
        std::string expected = "p" + std::to_string(i - 1);
        if (!isEmpty && i <= pieces.size()) {
            expected = pieces[i - 1];
            std::erase(expected, ' ');
        }
        require(namer.getInputParameter(i).c_str() == expected, "input " + std::to_string(i) + " is not " + expected);
    }
    require(namer.getOutputParameter(1).c_str() == std::string("result"), "the output's name");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const names = std::string(reinterpret_cast<char const*>(data), size).c_str();
    orbis::factory::ParameterNamer const ofText(names.c_str());
    check(ofText, true, names);
    check(orbis::factory::ParameterNamer(ofText), true, names);
    check(orbis::factory::ParameterNamer(names), !names.empty(), names);
    return 0;
}
