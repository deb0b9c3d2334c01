#pragma once

#include "orbis/factory/base/export.hpp"

#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory {

/// What native code throws to tell the script's user what went wrong, in a sentence (UTF-8). Any other exception of
/// native code reaches the script, too; this one also is the host's user exception.
class ORBIS_FACTORY_API Exception
    : public foundation::core::except::Exception<foundation::core::except::IUserException, std::exception> {
public:
    explicit Exception(std::string const& text);
    Exception(Exception const&);
    ~Exception() override;
};

} // namespace orbis::factory
