#pragma once

#include "libkwfl/IInternalException.hpp"
#include "libkwfl/IMsgIDException.hpp"

#include <concepts>
#include <exception>
#include <string>
#include <utility>

namespace foundation::core::except {

/// What is thrown for the message identity `IdClass`: caught as the foundation's exception and as a `Standard`
/// one. Thrown by value; copies share nothing.
template <class IdClass, class Standard, class = void>
class Exception : public IMsgIDException, public Standard {
    static_assert(std::derived_from<IdClass, resource_core::BaseMsgID>,
                  "Exception<IdClass, ...> needs a message identity: derive IdClass from resource_core::BaseMsgID.");

public:
    explicit Exception(IdClass const& id) : IMsgIDException(id) {} ///< its text is looked up at once

    /// The text in UTF-8, as long as the exception lives.
    char const* what() const noexcept override { return IMsgIDException::what(); }
};

/// The composite of a kind of exception that has a text but no message identity.
template <std::derived_from<IException> Kind, class Standard>
class Exception<Kind, Standard, void> : public Kind, public Standard {
public:
    explicit Exception(std::string text = {}) : text_(std::move(text)) {} ///< `text` is UTF-8

    char const* what() const noexcept override { return text_.c_str(); } ///< the text, as long as the exception lives

private:
    std::string text_;
};

} // namespace foundation::core::except
