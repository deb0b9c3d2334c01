#include "bindings/OperatorMembers.hpp"

namespace velmara::console {

namespace {

constexpr OperatorMember members[] = {
    {"__add", "plus", 2},   {"__sub", "minus", 2},   {"__mul", "times", 2},   {"__div", "over", 2},
    {"__mod", "modulo", 2}, {"__pow", "power", 2},   {"__unm", "negated", 1}, {"__concat", "concat", 2},
    {"__lt", "isLess", 2},  {"__le", "isAtMost", 2}, {"__len", "length", 1},  {"__call", "call", 0},
};

} // namespace

std::span<OperatorMember const> operatorMembers()
{
    return members;
}

} // namespace velmara::console
