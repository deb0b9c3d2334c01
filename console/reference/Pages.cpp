#include "reference/Pages.hpp"

#include "reference/ClassPage.hpp"
#include "reference/PageLinks.hpp"

#include <set>

namespace velmara::console {

namespace {

std::vector<DiagramClass> diagramOf(PackageRecord const& package, PageLinks const& links)
{
    std::vector<DiagramClass> diagram;
    for (std::string const& name : package.classes) {
        DiagramClass& cls = diagram.emplace_back(DiagramClass{links.shortName(name), links.pageOf(name), {}});
        for (std::string const& superclass : links.record(name).superclasses)
            if (links.knows(superclass))
                cls.superclasses.push_back(links.pageOf(superclass));
    }
    return diagram;
}

PageSection errorSection(PackageRecord const& package)
{
    PageSection section{"Errors", {}};
    for (ErrorRecord const& error : package.errors) {
        std::string fields;
        for (std::string const& field : error.fields)
            fields += (fields.empty() ? "with " : ", ") + field;
        section.entries.push_back({.name = error.identifier,
                                   .kind = "error",
                                   .place = errorPlace(error),
                                   .line = {{error.identifier, {}, {}}},
                                   .text = {},
                                   .note = {{fields, {}, {}}}});
    }
    return section;
}

ReferencePage packagePage(PackageRecord const& package, PageLinks const& links)
{
    ReferencePage page{.page = links.pageOf(package.name),
                       .kind = "Package",
                       .name = package.name,
                       .text = package.description,
                       .trail = links.trailTo(package.name),
                       .facts = {},
                       .diagram = diagramOf(package, links),
                       .sections = {}};
    PageSection packages{"Packages", {}};
    for (std::string const& name : package.packages)
        packages.entries.push_back(
            {.name = name, .kind = "package", .place = {}, .line = {links.to(name)}, .text = {}, .note = {}});
    PageSection classSection{"Classes", {}};
    for (std::string const& name : package.classes)
        classSection.entries.push_back({.name = name,
                                        .kind = "class",
                                        .place = {},
                                        .line = {links.to(name)},
                                        .text = links.record(name).description,
                                        .note = {}});
    page.sections = {packages, classSection, functionSection(package, links), errorSection(package)};
    return page;
}

/// The packages of all roots.
ReferencePage indexPage(std::span<PublishedRecords const> roots, PageLinks const& links)
{
    ReferencePage index{.page = "index",
                        .kind = "Reference",
                        .name = {},
                        .text = {},
                        .trail = {},
                        .facts = {},
                        .diagram = {},
                        .sections = {{"Packages", {}}}};
    for (PublishedRecords const& root : roots) {
        index.name += (index.name.empty() ? "" : ", ") + root.packages.front().name;
        for (PackageRecord const& package : root.packages)
            index.sections[0].entries.push_back({.name = package.name,
                                                 .kind = "package",
                                                 .place = {},
                                                 .line = {links.to(package.name)},
                                                 .text = package.description,
                                                 .note = {}});
    }
    return index;
}

/// Makes the places of a page differ: overloads have one name.
void numberPlaces(ReferencePage& page)
{
    std::set<std::string> used;
    for (PageSection& section : page.sections)
        for (PageEntry& entry : section.entries) {
            std::string const first = entry.place;
            for (int i = 2; !first.empty() && !used.insert(entry.place).second; ++i)
                entry.place = first + "--" + std::to_string(i);
        }
}

} // namespace

std::vector<ReferencePage> pagesOf(std::span<PublishedRecords const> roots)
{
    PageLinks const links(roots);
    std::vector<ReferencePage> pages{indexPage(roots, links)};
    for (PublishedRecords const& root : roots) {
        for (PackageRecord const& package : root.packages)
            pages.push_back(packagePage(package, links));
        for (ClassRecord const& cls : root.classes)
            pages.push_back(classPage(cls, links));
    }
    for (ReferencePage& page : pages)
        numberPlaces(page);
    return pages;
}

} // namespace velmara::console
