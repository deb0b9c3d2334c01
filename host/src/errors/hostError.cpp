#include "errors/hostError.hpp"

#include "libkwfl/Exception.hpp"

namespace velmara {

namespace {

class HostMsgID final : public resource_core::BaseMsgID {
public:
    using BaseMsgID::BaseMsgID;
};

} // namespace

void throwHostError(char const* catalog, char const* key, std::vector<std::string> arguments)
{
    using HostError = foundation::core::except::Exception<HostMsgID, std::exception>;
    throw HostError(HostMsgID(catalog, key, std::move(arguments)));
}

} // namespace velmara
