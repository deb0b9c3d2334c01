#pragma once

#include "velmara/export.hpp"

#include <exception>
#include <memory>
#include <string>

namespace velmara {

/// A script error: what every failure inside the host or a module becomes. `what()` is "identifier: text" (UTF-8).
class VELMARA_API Error : public std::exception {
public:
    Error(std::string identifier, std::string text);
    Error(Error const&) noexcept;
    ~Error() override;

    /// What a shortage of memory becomes, wherever it arises: "VELMARA:memory:exhausted". Once a virtual machine was
    /// made, asking for it takes none.
    static Error const& outOfMemory();

    std::string const& identifier() const;
    std::string const& text() const;
    char const* what() const noexcept override;

private:
    struct Texts;
    std::shared_ptr<Texts const> texts_; ///< copies share them: passing an error on takes no memory
};

} // namespace velmara
