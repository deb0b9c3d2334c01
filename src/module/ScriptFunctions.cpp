#include "orbis/factory/detail/objects/ScriptFunctions.hpp"

#include "orbis/factory/base/errorIdentities.hpp"
#include "orbis/factory/detail/arrays/MapEntries.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"
#include "orbis/factory/marshaling/elements.hpp"
#include "orbis/factory/types/StringPolicy.hpp"

#include "marshal/throwError.hpp"

#include "host_extensions/OwnedFunction.hpp"

#include <algorithm>

namespace orbis::factory::detail {

ScriptFunctions::ScriptFunctions() = default;

ScriptFunctions::ScriptFunctions(ScriptFunctions&&) noexcept = default;

ScriptFunctions& ScriptFunctions::operator=(ScriptFunctions&&) noexcept = default;

ScriptFunctions::~ScriptFunctions() = default;

ScriptFunctions::ScriptFunctions(hvArray_tag const* table, COSInterface* host)
{
    ElementReader<std::string> const names;
    MapEntries entries(table);
    functions_.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        std::string name = atElement(i, [&] {
            entries.select(i);
            return names.read(entries.key());
        });
        COSMethodInfo* const function = host_extensions::getFunction(entries.value());
        if (!function)
            throwNotConvertible("key \"" + name + "\": a script implements a class by functions, and this is none");
        functions_.emplace_back(std::move(name), host_extensions::FunctionHandle(entries.value()));
        if (auto* const owned = dynamic_cast<host_extensions::OwnedFunction*>(function))
            owned->setOwner(host);
    }
}

host_extensions::FunctionHandle const* ScriptFunctions::find(char const* name) const noexcept
{
    auto const found = std::ranges::find_if(functions_, [=](auto const& function) { return function.first == name; });
    return found == functions_.end() ? nullptr : &found->second;
}

void throwNotImplemented(NamedClass const& named, char const* name, std::string const& type)
{
    throwError(orbis_factory::orbis_factory::not_implemented(className(named), name, type));
}

} // namespace orbis::factory::detail
