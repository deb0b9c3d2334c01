#include "orbis/factory/base/Exception.hpp"

namespace orbis::factory {

Exception::Exception(std::string const& text)
    : foundation::core::except::Exception<foundation::core::except::IUserException, std::exception>(text)
{
}

Exception::Exception(Exception const&) = default;

Exception::~Exception() = default;

} // namespace orbis::factory
