#include "reference/PublishedRecords.hpp"

#include "lua/ScriptError.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

std::vector<PackageRecord> packagesIn(Hvm& hvm, std::string const& root)
{
    std::vector<PackageRecord> packages;
    std::vector<std::string> open{root}; // the last one is next
    while (!open.empty()) {
        packages.push_back(hvm.describePackage(open.back()));
        open.pop_back();
        auto const& inner = packages.back().packages;
        open.insert(open.end(), inner.rbegin(), inner.rend());
    }
    return packages;
}

bool isInside(std::string_view package, std::string_view outer)
{
    return package.size() > outer.size() && package.starts_with(outer) && package[outer.size()] == '.';
}

PublishedRecords recordsOf(Hvm& hvm, std::string const& package)
{
    if (hvm.lookUp(package) != NameKind::Package)
        fail("unknownName", "no package is published as '" + package + '\'');
    packagesIn(hvm, package); // a package that is asked first may publish names outside it
    PublishedRecords records;
    records.packages = packagesIn(hvm, package);
    for (PackageRecord const& record : records.packages)
        for (std::string const& cls : record.classes)
            records.classes.push_back(hvm.describeClass(cls));
    return records;
}

} // namespace

std::vector<PublishedRecords> recordsOf(Hvm& hvm, std::span<std::string const> packages)
{
    std::vector<PublishedRecords> all;
    for (auto package = packages.begin(); package != packages.end(); ++package) {
        PublishedRecords records = recordsOf(hvm, *package);
        bool const isTwice = std::find(packages.begin(), package, *package) != package;
        if (!isTwice && std::ranges::none_of(packages, [&](auto const& other) { return isInside(*package, other); }))
            all.push_back(std::move(records));
    }
    return all;
}

} // namespace velmara::console
