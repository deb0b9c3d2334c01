#include "reference/HtmlPage.hpp"

#include "reference/ClassDiagram.hpp"
#include "reference/HtmlText.hpp"

namespace velmara::console {

namespace {

std::string pieceHtml(PagePiece const& piece)
{
    if (piece.page.empty())
        return htmlText(piece.text);
    std::string const place = piece.place.empty() ? std::string() : '#' + piece.place;
    return "<a href=\"" + piece.page + ".html" + place + "\">" + htmlText(piece.text) + "</a>";
}

std::string lineHtml(PageLine const& line)
{
    std::string text;
    for (PagePiece const& piece : line)
        text += pieceHtml(piece);
    return text;
}

std::string paragraphHtml(std::string const& text)
{
    return text.empty() ? text : "<p>" + htmlText(text) + "</p>\n";
}

std::string trailHtml(PageLine const& trail)
{
    if (trail.empty())
        return {};
    std::string text = "<nav aria-label=\"Packages around\"><ol>\n";
    for (PagePiece const& piece : trail)
        text += "<li>" + pieceHtml(piece) + "</li>\n";
    return text + "</ol></nav>\n";
}

std::string entryHtml(PageEntry const& entry)
{
    std::string text = "<article";
    text += entry.place.empty() ? "" : " id=\"" + entry.place + '"';
    text += ">\n<h3><code>" + lineHtml(entry.line) + "</code></h3>\n" + paragraphHtml(entry.text);
    std::string const note = lineHtml(entry.note);
    return text + (note.empty() ? "" : "<p class=\"note\">" + note + "</p>\n") + "</article>\n";
}

std::string sectionHtml(PageSection const& section)
{
    if (section.entries.empty())
        return {};
    std::string text = "<section>\n<h2>" + htmlText(section.title) + "</h2>\n";
    for (PageEntry const& entry : section.entries)
        text += entryHtml(entry);
    return text + "</section>\n";
}

std::string headHtml(ReferencePage const& page)
{
    std::string const title = page.name.empty() ? page.kind : page.name;
    return R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<link rel="stylesheet" href="style.css">
<script src="entries.js" defer></script>
<script src="search.js" defer></script>
<title>)" + htmlText(title) +
           R"(</title>
</head>
<body>
<a class="skip" href="#content">Skip to the content</a>
<header>
)" + trailHtml(page.trail) +
           R"(<div role="search">
<label for="query">Search</label> <input id="query" type="search" autocomplete="off" aria-controls="found">
<p id="count" role="status"></p>
<ul id="found"></ul>
</div>
</header>
<main id="content">
)";
}

} // namespace

std::string htmlPage(ReferencePage const& page)
{
    std::string text = headHtml(page);
    text += "<p class=\"kind\">" + htmlText(page.kind) + "</p>\n<h1>" + htmlText(page.name) + "</h1>\n" +
            paragraphHtml(page.text);
    if (!page.facts.empty()) {
        text += "<ul class=\"facts\">\n";
        for (PageLine const& fact : page.facts)
            text += "<li>" + lineHtml(fact) + "</li>\n";
        text += "</ul>\n";
    }
    text += classDiagram(page.diagram);
    for (PageSection const& section : page.sections)
        text += sectionHtml(section);
    return text + "</main>\n<footer><p>Written by velmara from what the modules tell of themselves.</p></footer>\n"
                  "</body>\n</html>\n";
}

} // namespace velmara::console
