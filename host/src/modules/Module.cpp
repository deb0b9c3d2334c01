#include "modules/Module.hpp"

#include "classes/PackageTree.hpp"
#include "errors/MessageCatalog.hpp"
#include "errors/errorTranslation.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"
#include "text/pathText.hpp"

#include "host_extensions/host_extensions.hpp"

#include <utility>

namespace velmara {

namespace {

ModuleRecord createRecord(std::filesystem::path const& file, std::string name)
{
    ModuleRecord record;
    record.name = std::move(name);
    record.file = pathText(file);
    return record;
}

/// Whether a file name's extension is part of a version, as in libNAME.so.1.2.
bool isNumber(std::string_view extension)
{
    return extension.size() > 1 && extension.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

} // namespace

Module::Module(std::filesystem::path const& file, std::string name)
    : file_(file),
      record_(createRecord(file, std::move(name))),
      library_(file),
      initialize_(entryPoint("VXInitialize_")),
      terminate_(entryPoint("VXTerminate_"))
{
    entryPoint("QueryVXFcnTable_"); // a module has it, though this host calls nothing through it
    record_.version = versionWord("_version");
    record_.buildDate = versionWord("_build_date");
    record_.relativePath = versionWord("_relative_path");
}

Module::EntryPoint Module::entryPoint(std::string const& prefix) const
{
    void* const address = library_.find(prefix + record_.name);
    if (!address)
        throwHostError("VELMARA:module", "noEntryPoint", {record_.file, prefix + record_.name});
    return reinterpret_cast<EntryPoint>(address);
}

std::string Module::versionWord(char const* suffix) const
{
    auto const* const word = static_cast<char const* const*>(library_.find(record_.name + suffix));
    return word && *word ? *word : "";
}

void Module::addMessages() const
{
    auto const* const word =
        static_cast<orbis::host_extensions::MessageList const* const*>(library_.find(record_.name + "_messages"));
    for (auto const* list = word ? *word : nullptr; list && list->catalog; ++list) {
        auto const* end = list->messages;
        while (end->key)
            ++end;
        orbis::host_extensions::addMessages(list->catalog, {list->messages, end});
    }
}

void Module::initialize()
{
    addMessages();
    try {
        Machine::required().packages().transact(initialize_);
    } catch (...) {
        rethrowFailure("initialization");
    }
    isLoaded_ = true;
}

void Module::terminate()
{
    try {
        terminateRaw();
    } catch (...) {
        rethrowFailure("termination");
    }
}

void Module::terminateRaw()
{
    terminate_();
    isLoaded_ = false;
}

void Module::rethrowFailure(char const* key) const
{
    Error const error = currentError();
    throw Error(error.identifier(), messageText("VELMARA:module", key, {record_.name, error.text()}));
}

std::string moduleName(std::filesystem::path const& file)
{
    std::filesystem::path name = file.filename();
    while (isNumber(pathText(name.extension())))
        name = name.stem();
    std::string const stem = pathText(name.stem());
    return stem.starts_with("lib") ? stem.substr(3) : stem;
}

} // namespace velmara
