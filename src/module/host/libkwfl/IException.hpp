#pragma once

#include "orbis_host_export.hpp"

/// Exceptions of the host.
namespace foundation::core::except {

/// The root of the host's exceptions.
class ORBIS_HOST_API IException {
public:
    IException(IException const&);
    IException& operator=(IException const&);
    virtual ~IException();

    /// The error in one UTF-8 text.
    virtual char const* what() const noexcept = 0;

protected:
    IException();
};

} // namespace foundation::core::except
