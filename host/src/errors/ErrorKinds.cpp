#include "errors/ErrorKinds.hpp"

#include "errors/MessageCatalog.hpp"
#include "errors/hostError.hpp"

#include "libhv/libhv.hpp"

#include <algorithm>
#include <cxxabi.h>
#include <memory>
#include <new>
#include <utility>

namespace velmara {

namespace {

std::vector<ErrorField> readFields(orbis::host_extensions::ErrorKind const& kind)
{
    std::vector<ErrorField> fields;
    for (orbis::host_extensions::ErrorField const& field : kind.fields) {
        try {
            std::shared_ptr<hvArray_tag> const value(field.read(field), hvDestroy_deleter());
            if (value)
                fields.push_back({field.name, value});
        } catch (std::bad_alloc const&) {
            throw;
        } catch (...) { // scripts are to learn of the error itself
        }
    }
    return fields;
}

} // namespace

void ErrorKinds::add(orbis::host_extensions::ErrorKind kind)
{
    auto const known = std::ranges::find_if(kinds_, [&](auto const& other) { return *other.type == *kind.type; });
    if (known == kinds_.end())
        kinds_.push_back(std::move(kind));
    else
        *known = std::move(kind);
}

std::optional<Error> ErrorKinds::describeCurrent() const
{
    // Each question rethrows the exception, so the most likely one comes first.
    std::type_info const* const type = kinds_.empty() ? nullptr : abi::__cxa_current_exception_type();
    std::string text;
    for (bool const isExact : {true, false})
        for (auto kind = kinds_.rbegin(); kind != kinds_.rend(); ++kind)
            if ((type && *kind->type == *type) == isExact && kind->describe(*kind, text))
                return Error(kind->identifier, text, readFields(*kind));
    return std::nullopt;
}

} // namespace velmara

namespace orbis::host_extensions {

void addErrorKind(ErrorKind kind)
{
    if (velmara::MessageSource* const source = velmara::MessageSource::current())
        source->errorKinds().add(std::move(kind));
    else
        velmara::throwHostError("VELMARA:hvm", "noVirtualMachine");
}

} // namespace orbis::host_extensions
