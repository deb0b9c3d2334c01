#include "reference/Site.hpp"

#include "reference/HtmlPage.hpp"
#include "reference/MarkdownPage.hpp"
#include "reference/OutputFile.hpp"
#include "reference/Pages.hpp"
#include "reference/SiteAssets.hpp"

namespace velmara::console {

namespace {

/// The text as a string of JavaScript, also where that stands in HTML.
std::string scriptString(std::string_view text)
{
    std::string result = "\"";
    for (char const c : text)
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f')
            result += ' ';
        else if (c == '<')
            result += "\\x3c";
        else
            result.append(c == '"' || c == '\\' ? "\\" : "").append(1, c);
    return result + '"';
}

std::string searchEntry(std::string const& name, std::string const& kind, std::string const& address,
                        std::string const& text)
{
    return '[' + scriptString(name) + ',' + scriptString(kind) + ',' + scriptString(address) + ',' +
           scriptString(text) + "],\n";
}

/// What the search looks through: name, kind, address and text of each page and member.
std::string searchEntries(std::span<ReferencePage const> pages)
{
    std::string text = "const entries = [\n";
    for (ReferencePage const& page : pages.subspan(1)) {
        text += searchEntry(page.name, page.kind, page.page + ".html", page.text);
        for (PageSection const& section : page.sections)
            for (PageEntry const& entry : section.entries)
                if (!entry.place.empty())
                    text += searchEntry(page.name + '.' + entry.name, entry.kind, page.page + ".html#" + entry.place,
                                        entry.text);
    }
    return text + "];\n";
}

} // namespace

void writeSite(Hvm& hvm, std::filesystem::path const& folder, std::span<std::string const> packages, SiteFormat format)
{
    std::vector<ReferencePage> const pages = pagesOf(recordsOf(hvm, packages));
    bool const isHtml = format == SiteFormat::Html;
    for (ReferencePage const& page : pages)
        writeFile(folder / (page.page + (isHtml ? ".html" : ".md")), isHtml ? htmlPage(page) : markdownPage(page));
    if (!isHtml)
        return;
    writeFile(folder / "style.css", siteStyle);
    writeFile(folder / "search.js", siteScript);
    writeFile(folder / "entries.js", searchEntries(pages));
}

} // namespace velmara::console
