#include "libkwfl/BaseMsgID.hpp"

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
