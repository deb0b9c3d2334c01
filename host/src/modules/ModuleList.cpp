#include "modules/ModuleList.hpp"

#include "errors/errorTranslation.hpp"
#include "errors/hostError.hpp"
#include "text/pathText.hpp"

#include <algorithm>

namespace velmara {

Module& ModuleList::open(std::filesystem::path const& file)
{
    std::error_code failed;
    std::filesystem::path const absolute = std::filesystem::canonical(file, failed);
    if (failed)
        throwHostError("VELMARA:module", "cannotLoad", {pathText(file), failed.message()});
    std::string const name = moduleName(absolute);
    auto const known = std::ranges::find(modules_, name, [](auto const& module) { return module->name(); });
    if (known == modules_.end())
        return *modules_.emplace_back(std::make_unique<Module>(absolute, name));
    if ((*known)->file() != absolute)
        throwHostError("VELMARA:module", "otherFile", {name, (*known)->record().file, pathText(absolute)});
    return **known;
}

Module const& ModuleList::load(std::filesystem::path const& file)
{
    Module& module = open(file);
    module.initialize();
    return module;
}

void ModuleList::unload(std::string_view name)
{
    for (auto const& module : modules_)
        if (module->name() == name && module->isLoaded())
            return module->terminate();
    throwHostError("VELMARA:module", "notLoaded", {std::string(name)});
}

std::vector<ModuleRecord> ModuleList::records() const
{
    std::vector<ModuleRecord> records;
    for (auto const& module : modules_)
        if (module->isLoaded())
            records.push_back(module->record());
    return records;
}

void ModuleList::terminateAll(FailureReport const& report) noexcept
{
    for (std::size_t i = modules_.size(); i-- > 0;) {
        Module& module = *modules_[i];
        try {
            if (module.isLoaded())
                module.terminateRaw();
        } catch (...) {
            if (report)
                report(module.name(), currentExceptionWhat());
        }
    }
}

} // namespace velmara
