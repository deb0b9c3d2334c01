#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/NamedClass.hpp"

#include "host_extensions/functionValues.hpp"
#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"

#include <string>
#include <utility>
#include <vector>

namespace orbis::factory::detail {

/// The functions, by their names, with which a script implements a class for one object.
class ORBIS_FACTORY_API ScriptFunctions {
public:
    ScriptFunctions();

    /// From a table with texts as its keys, for the native object of `host`. Throws the `not_convertible` error for
    /// other values than functions.
    ScriptFunctions(hvArray_tag const* table, COSInterface* host);
    ScriptFunctions(ScriptFunctions&&) noexcept;
    ScriptFunctions& operator=(ScriptFunctions&&) noexcept;
    ~ScriptFunctions();

    /// Null when there is none of that name. Valid as long as this.
    host_extensions::FunctionHandle const* find(char const* name) const noexcept;

private:
    std::vector<std::pair<std::string, host_extensions::FunctionHandle>> functions_;
};

/// Throws the `not_implemented` error: the script gave no function of that name and type for an object of the class.
[[noreturn]] ORBIS_FACTORY_API void throwNotImplemented(NamedClass const& named, char const* name,
                                                        std::string const& type);

} // namespace orbis::factory::detail
