#pragma once

#include "orbis/factory/base/errorIdentities.hpp"

#include "libhv/hvArray.hpp"
#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory {

/// The error of an input without the native object that it must have. It is thrown where the input's name is unknown;
/// the descriptor, which knows it, rethrows the error with the name.
class NullInput final
    : public foundation::core::except::Exception<orbis_factory::orbis_factory::null_input, std::exception, void> {
public:
    NullInput(std::string const& name, hvArray_tag const* input, char const* className)
        : Exception(orbis_factory::orbis_factory::null_input(name, className)),
          input_(input),
          className_(className)
    {
    }

    hvArray_tag const* input() const { return input_; }
    char const* className() const { return className_; }

private:
    hvArray_tag const* input_;
    char const* className_; ///< a literal
};

} // namespace orbis::factory
