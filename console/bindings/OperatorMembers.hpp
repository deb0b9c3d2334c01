#pragma once

#include <span>

namespace velmara::console {

/// An operator of the script's language, and the name of the member that it calls.
struct OperatorMember {
    char const* metamethod;
    char const* member;
    int operands; ///< those that are passed on; 0 for all
};

/// Those that one member alone makes up.
std::span<OperatorMember const> operatorMembers();

} // namespace velmara::console
