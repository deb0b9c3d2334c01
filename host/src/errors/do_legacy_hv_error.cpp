#include "libhv/libhv.hpp"
#include "libkwfl/Exception.hpp"

namespace matrix::detail::noninlined::hv_array_api {

namespace {

namespace except = foundation::core::except;

/// A copy that keeps the message id, whatever the type of the original was.
class IdentifiedError final : public except::IMsgIDException, public std::exception {
public:
    explicit IdentifiedError(IMsgIDException const& error) : IMsgIDException(error) {}

    char const* what() const noexcept override { return IMsgIDException::what(); }
};

} // namespace

void do_legacy_hv_error(except::IUserException const& error)
{
    if (auto const* identified = dynamic_cast<except::IMsgIDException const*>(&error))
        throw IdentifiedError(*identified);
    throw except::Exception<except::IUserException, std::exception>(error.what());
}

} // namespace matrix::detail::noninlined::hv_array_api
