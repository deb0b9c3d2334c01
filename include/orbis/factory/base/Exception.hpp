#pragma once

#include "orbis/factory/base/export.hpp"

#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory {

/// Thrown by native code to report a failure to the script's user, in one sentence (UTF-8). Other exceptions of native
/// code reach the script, too; this one is also the host's user exception.
class ORBIS_FACTORY_API Exception
    : public foundation::core::except::Exception<foundation::core::except::IUserException, std::exception> {
public:
    explicit Exception(std::string const& text); ///< `text` is UTF-8
    Exception(Exception const&);
    ~Exception() override;
};

} // namespace orbis::factory
