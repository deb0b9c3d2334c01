#include "module/notPublished.hpp"

#include "orbis/factory/base/errorIdentities.hpp"

#include "marshal/throwError.hpp"

#include "libkwfl/IException.hpp"

#include <exception>
#include <string>

namespace orbis::factory {

namespace {

std::string textOfCurrentException()
{
    try {
        throw;
    } catch (foundation::core::except::IException const& error) {
        return error.what();
    } catch (std::exception const& error) {
        return error.what();
    } catch (...) {
        return "something that is no exception was thrown";
    }
}

} // namespace

void throwNotPublished(char const* owner, char const* member)
{
    std::string const name = owner ? std::string(owner) + '.' + member : std::string(member);
    throwError(orbis_factory::orbis_factory::member_not_published(name, textOfCurrentException()));
}

} // namespace orbis::factory
