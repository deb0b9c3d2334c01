#pragma once

#include "libkwfl/IException.hpp"

namespace foundation::core::except {

/// An error of the program itself, not of its user.
class ORBIS_HOST_API IInternalException : public IException {
public:
    IInternalException(IInternalException const&);
    IInternalException& operator=(IInternalException const&);
    ~IInternalException() override;

protected:
    IInternalException();
};

} // namespace foundation::core::except
