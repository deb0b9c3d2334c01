#include "reference/MarkdownPage.hpp"

namespace velmara::console {

namespace {

/// The text as it is shown: no character of it is markup.
std::string plain(std::string_view text)
{
    std::string result;
    for (char const c : text) {
        if (std::string_view("\\`*_{}[]<>#+-.!|&~$@").find(c) != std::string_view::npos)
            result += '\\';
        result += static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? ' ' : c;
    }
    return result;
}

std::string lineText(PageLine const& line)
{
    std::string text;
    for (PagePiece const& piece : line)
        text += piece.page.empty() ? plain(piece.text) : '[' + plain(piece.text) + "](" + piece.page + ".md)";
    return text;
}

std::string paragraph(std::string const& text)
{
    return text.empty() ? text : plain(text) + "\n\n";
}

std::string entryText(PageEntry const& entry)
{
    std::string const note = lineText(entry.note);
    return "### " + lineText(entry.line) + "\n\n" + paragraph(entry.text) + note + (note.empty() ? "" : "\n\n");
}

} // namespace

std::string markdownPage(ReferencePage const& page)
{
    std::string text = "# " + plain(page.kind) + ' ' + plain(page.name) + "\n\n";
    text += page.trail.empty() ? "" : "In ";
    for (PagePiece const& piece : page.trail)
        text += (&piece == page.trail.data() ? "" : " / ") + lineText({piece});
    text += (page.trail.empty() ? "" : "\n\n") + paragraph(page.text);
    for (PageLine const& fact : page.facts)
        text += "- " + lineText(fact) + '\n';
    text += page.facts.empty() ? "" : "\n";
    for (PageSection const& section : page.sections) {
        text += section.entries.empty() ? "" : "## " + plain(section.title) + "\n\n";
        for (PageEntry const& entry : section.entries)
            text += entryText(entry);
    }
    return text;
}

} // namespace velmara::console
