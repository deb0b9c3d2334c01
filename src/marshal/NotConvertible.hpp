#pragma once

#include "orbis/factory/base/errorIdentities.hpp"

#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory {

/// The error of a value that does not convert; keeps the reason apart from the message. Where it is thrown, the name of
/// an input is unknown; the descriptor, which knows it, rethrows the error with the name.
class NotConvertible final
    : public foundation::core::except::Exception<orbis_factory::orbis_factory::not_convertible, std::exception, void> {
public:
    /// `input` is the position of the input among those with names, if the value is one.
    explicit NotConvertible(std::string const& reason, int input = -1)
        : Exception(orbis_factory::orbis_factory::not_convertible(reason)),
          reason_(reason),
          input_(input)
    {
    }

    std::string const& reason() const { return reason_; }
    int input() const { return input_; }

private:
    std::string reason_;
    int input_;
};

} // namespace orbis::factory
