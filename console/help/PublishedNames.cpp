#include "help/PublishedNames.hpp"

#include "bindings/MemberRecords.hpp"

#include <vector>

namespace velmara::console {

namespace {

void visitPackages(Hvm& hvm, std::function<void(PackageRecord const&)> const& visit)
{
    std::vector<std::string> open{std::string()}; // the last one is next
    while (!open.empty()) {
        PackageRecord const package = hvm.describePackage(open.back());
        open.pop_back();
        visit(package);
        open.insert(open.end(), package.packages.rbegin(), package.packages.rend());
    }
}

void visitContents(PackageRecord const& package, std::function<void(PublishedName const&)> const& visit)
{
    if (!package.name.empty())
        visit({package.name, NameKind::Package, package.description});
    for (std::string const& cls : package.classes)
        visit({cls, NameKind::Class, {}});
    std::string const owner = package.name.empty() ? std::string() : package.name + '.';
    for (MethodRecord const& function : package.functions)
        if (isListed(function))
            visit({owner + function.name, NameKind::Function, function.description});
}

} // namespace

void visitPublished(Hvm& hvm, std::function<void(PublishedName const&)> const& visit)
{
    visitPackages(hvm, [](PackageRecord const&) {}); // a package that is asked first may publish names outside it
    visitPackages(hvm, [&](PackageRecord const& package) { visitContents(package, visit); });
}

} // namespace velmara::console
