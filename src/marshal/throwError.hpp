#pragma once

#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory {

/// Throws an error with this identity and the text that the current virtual machine's catalogs have for it.
template <class Identity>
[[noreturn]] void throwError(Identity const& identity)
{
    throw foundation::core::except::Exception<Identity, std::exception, void>(identity);
}

/// Throws an internal error with this text: a class cannot be used in the way in which it was published.
[[noreturn]] inline void throwInternalError(std::string const& text)
{
    using foundation::core::except::Exception;
    throw Exception<foundation::core::except::IInternalException, std::exception>(text);
}

} // namespace orbis::factory
