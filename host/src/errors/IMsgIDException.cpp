#include "libkwfl/IMsgIDException.hpp"

#include "errors/MessageCatalog.hpp"

#include "libkwi18n/libkwi18n.hpp"

namespace resource_core {

BaseMsgID::BaseMsgID(char const* catalog, char const* key, std::vector<std::string> arguments)
    : catalog_(catalog ? catalog : ""),
      key_(key ? key : ""),
      arguments_(std::move(arguments))
{
}

BaseMsgID::BaseMsgID(BaseMsgID const&) = default;
BaseMsgID& BaseMsgID::operator=(BaseMsgID const&) = default;
BaseMsgID::~BaseMsgID() = default;

char const* BaseMsgID::getCatalog() const
{
    return catalog_;
}

char const* BaseMsgID::getKey() const
{
    return key_;
}

std::vector<std::string> const& BaseMsgID::getArguments() const
{
    return arguments_;
}

} // namespace resource_core

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
