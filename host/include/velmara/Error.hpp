#pragma once

#include "velmara/export.hpp"

#include "libhv/hvArray.hpp"

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace velmara {

/// A value that goes with an error.
struct ErrorField {
    std::string name;                         ///< by which scripts read it
    std::shared_ptr<hvArray_tag const> value; ///< of the virtual machine in which the error arose; null for none
};

/// A script error: what every failure inside the host or a module becomes. `what()` is "identifier: text" (UTF-8).
class VELMARA_API Error : public std::exception {
public:
    /// An error of that identifier ("component:catalog:key") and text (UTF-8).
    Error(std::string identifier, std::string text);
    Error(std::string identifier, std::string text, std::vector<ErrorField> fields); ///< The same, with values.

    /// The same error, with the one that led to it.
    Error(Error const& error, std::shared_ptr<Error const> cause);
    Error(Error const&) noexcept;
    ~Error() override;

    /// What a shortage of memory becomes, wherever it arises: "VELMARA:memory:exhausted". Once a virtual machine was
    /// made, asking for it takes none.
    static Error const& outOfMemory();

    std::string const& identifier() const;         ///< such as "VELMARA:dispatch:noMatch"
    std::string const& text() const;               ///< without the identifier
    char const* what() const noexcept override;    ///< both, as long as the error lives
    std::vector<ErrorField> const& fields() const; ///< the values that go with it

    /// The error that led to this one, where native code nested exceptions; else null.
    Error const* cause() const;

private:
    struct Texts;
    std::shared_ptr<Texts const> texts_; ///< copies share them: passing an error on takes no memory
};

} // namespace velmara
