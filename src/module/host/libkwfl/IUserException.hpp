#pragma once

#include "libkwfl/IException.hpp"

#include <string>

namespace foundation::core::except {

/// An error that is shown to the script's user.
class ORBIS_HOST_API IUserException : public IException {
public:
    IUserException(IUserException const&);
    IUserException& operator=(IUserException const&);
    ~IUserException() override;

    /// Between narrow (UTF-8) and UTF-16 text.
    static std::u16string convert_str(std::string const& text);
    static std::string convert_str(std::u16string const& text); ///< the other way
    static std::u16string ToUstringImpl(char const* text);      ///< of a NUL-terminated text; null is empty

protected:
    IUserException();
};

} // namespace foundation::core::except
