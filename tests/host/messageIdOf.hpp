#pragma once

#include "libkwfl/IMsgIDException.hpp"

#include <string>

/// The message id with which a host call is refused; empty when it is not refused.
template <class Call>
std::string messageIdOf(Call call)
{
    try {
        call();
    } catch (foundation::core::except::IMsgIDException const& error) {
        return error.getErrorID();
    }
    return {};
}
