#pragma once

#include "libkwfl/Exception.hpp"

namespace orbis::factory {

/// Throws an error with this identity and the text that the current virtual machine's catalogs have for it.
template <class Identity>
[[noreturn]] void throwError(Identity const& identity)
{
    throw foundation::core::except::Exception<Identity, std::exception, void>(identity);
}

} // namespace orbis::factory
