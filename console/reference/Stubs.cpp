#include "reference/Stubs.hpp"

#include "reference/ConsoleStub.hpp"
#include "reference/FileNames.hpp"
#include "reference/LuaSource.hpp"
#include "reference/OutputFile.hpp"
#include "reference/PublishedRecords.hpp"
#include "reference/StubText.hpp"

#include <algorithm>
#include <vector>

namespace velmara::console {

namespace {

constexpr char const* header = "---@meta\n\n";

/// Adds the nearest known classes that the class is derived from.
void addKnownSuperclasses(Hvm& hvm, std::vector<std::string> const& superclasses, StubTypes const& types,
                          std::vector<std::string>& known)
{
    for (std::string const& superclass : superclasses)
        if (!types.has(superclass))
            addKnownSuperclasses(hvm, hvm.describeClass(superclass).superclasses, types, known);
        else if (std::ranges::find(known, superclass) == known.end())
            known.push_back(superclass);
}

/// Statements that have tables for the packages around the named one.
std::string outerPackages(std::string_view name)
{
    std::string text;
    for (std::size_t dot = name.find('.'); dot != name.npos; dot = name.find('.', dot + 1)) {
        std::string const outer = luaPath(name.substr(0, dot));
        text.append(outer).append(" = ").append(outer).append(" or {}\n");
    }
    return text;
}

std::string stubOf(Hvm& hvm, PublishedRecords const& records, StubTypes const& types)
{
    std::string text = header + outerPackages(records.packages.front().name);
    for (PackageRecord const& package : records.packages)
        text += packageStub(package, types);
    for (ClassRecord cls : records.classes) {
        std::vector<std::string> known;
        addKnownSuperclasses(hvm, cls.superclasses, types, known);
        cls.superclasses = known;
        text += classStub(cls, types);
    }
    return text;
}

} // namespace

void writeStubs(Hvm& hvm, std::filesystem::path const& folder, std::span<std::string const> packages)
{
    std::vector<PublishedRecords> const all = recordsOf(hvm, packages);
    StubTypes types;
    for (PublishedRecords const& records : all)
        for (ClassRecord const& cls : records.classes)
            types.add(cls.name, cls.isEnumeration ? StubTypes::Kind::Enumeration : StubTypes::Kind::Objects);
    // No package is called so: a hyphen is in no file name of one.
    writeFile(folder / "velmara-console.lua", header + consoleStub());
    FileNames names;
    for (PublishedRecords const& records : all)
        writeFile(folder / (names.add(stubTypeName(records.packages.front().name)) + ".lua"),
                  stubOf(hvm, records, types));
}

} // namespace velmara::console
