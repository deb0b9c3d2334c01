#pragma once

#include "libkwfl/BaseMsgID.hpp"
#include "libkwfl/IUserException.hpp"

namespace foundation::core::except {

namespace resource_core = ::resource_core;

/// An error known by a message identity. Its text is looked up in the message catalogs of the virtual machine
/// that is current when the exception is made; where no catalog has it, the text is the full message id.
class ORBIS_HOST_API IMsgIDException : public IUserException {
public:
    IMsgIDException();
    explicit IMsgIDException(resource_core::BaseMsgID const& id); ///< copies what it needs of `id`
    IMsgIDException(IMsgIDException const&);
    IMsgIDException& operator=(IMsgIDException const&);
    ~IMsgIDException() override;

    /// The full message id: catalog, a colon, key.
    static std::string get_error_id(resource_core::BaseMsgID const& id);

    /// The full message id of this error; empty for a default-made one.
    std::string const& getErrorID() const;

    std::vector<std::string> const& getArguments() const; ///< those of the identity

    std::u16string GetUnicodeMessageTxt() const; ///< the text in UTF-16

    char const* what() const noexcept override;

private:
    std::string id_;
    std::string text_;
    std::vector<std::string> arguments_;
};

} // namespace foundation::core::except
