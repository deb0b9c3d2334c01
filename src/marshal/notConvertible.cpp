#include "orbis/factory/detail/arrays/notConvertible.hpp"

#include "marshal/NotConvertible.hpp"
#include "marshal/describeArray.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <exception>
#include <new>

namespace orbis::factory::detail {

namespace {

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

void rethrowAtInput(std::size_t index)
{
    throw NotConvertible(reasonOfCurrentException(), static_cast<int>(index));
}

} // namespace orbis::factory::detail
