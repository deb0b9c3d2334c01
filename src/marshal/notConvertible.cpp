#include "orbis/factory/detail/arrays/notConvertible.hpp"

#include "orbis/factory/base/errorIdentities.hpp"

#include "marshal/describeArray.hpp"

#include "libkwfl/Exception.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <exception>
#include <new>

namespace orbis::factory::detail {

namespace {

/// Keeps the reason apart from the message.
class NotConvertible final
    : public foundation::core::except::Exception<orbis_factory::orbis_factory::not_convertible, std::exception, void> {
public:
    explicit NotConvertible(std::string const& reason)
        : Exception(orbis_factory::orbis_factory::not_convertible(reason)),
          reason_(reason)
    {
    }

    std::string const& reason() const { return reason_; }

private:
    std::string reason_;
};

/// The message adds one.
std::string withoutFullStop(std::string text)
{
    if (text.ends_with('.'))
        text.pop_back();
    return text;
}

} // namespace

void throwNotConvertible(std::string const& reason)
{
    throw NotConvertible(reason);
}

std::string reasonOfCurrentException()
{
    try {
        throw;
    } catch (std::bad_alloc const&) {
        throw;
    } catch (NotConvertible const& error) {
        return error.reason();
    } catch (foundation::core::except::IException const& error) {
        return withoutFullStop(error.what());
    } catch (std::exception const& error) {
        return withoutFullStop(error.what());
    } catch (...) {
        return "something that is no exception was thrown";
    }
}

void rethrowAt(std::string const& place)
{
    throw NotConvertible(place + ": " + reasonOfCurrentException());
}

void rethrowAtElement(std::size_t index)
{
    rethrowAt(placeOfElement(index));
}

} // namespace orbis::factory::detail
