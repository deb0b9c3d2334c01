#pragma once

#include "velmara/export.hpp"

#include <exception>
#include <string>

namespace velmara {

/// A script error: what every failure inside the host or a module becomes. `what()` is "identifier: text" (UTF-8).
class VELMARA_API Error : public std::exception {
public:
    Error(std::string identifier, std::string text);
    Error(Error const&);
    ~Error() override;

    std::string const& identifier() const;
    std::string const& text() const;
    char const* what() const noexcept override;

private:
    std::string identifier_;
    std::string text_;
    std::string what_;
};

} // namespace velmara
