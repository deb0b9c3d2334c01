#include "libkwfl/IMsgIDException.hpp"

#include "errors/MessageCatalog.hpp"

#include "libkwi18n/libkwi18n.hpp"

namespace foundation::core::except {

IMsgIDException::IMsgIDException() = default;

IMsgIDException::IMsgIDException(resource_core::BaseMsgID const& id)
    : id_(get_error_id(id)),
      text_(velmara::messageText(id.getCatalog(), id.getKey(), id.getArguments())),
      arguments_(id.getArguments())
{
}

IMsgIDException::IMsgIDException(IMsgIDException const&) = default;
IMsgIDException& IMsgIDException::operator=(IMsgIDException const&) = default;
IMsgIDException::~IMsgIDException() = default;

std::string IMsgIDException::get_error_id(resource_core::BaseMsgID const& id)
{
    return std::string(id.getCatalog()) + ':' + id.getKey();
}

std::string const& IMsgIDException::getErrorID() const
{
    return id_;
}

std::vector<std::string> const& IMsgIDException::getArguments() const
{
    return arguments_;
}

std::u16string IMsgIDException::GetUnicodeMessageTxt() const
{
    return fl::i18n::to_ustring(text_);
}

char const* IMsgIDException::what() const noexcept
{
    return text_.c_str();
}

} // namespace foundation::core::except
