#include "pictures/DotText.hpp"

#include "reference/HtmlText.hpp"
#include "values/HostText.hpp"

#include "velmara/ArrayPtr.hpp"

#include "host_extensions/host_extensions.hpp"

#include <algorithm>
#include <string_view>

namespace velmara::console {

namespace {

constexpr std::string_view heading = R"(digraph objects {
  graph [fontname="sans-serif", labelloc=t, rankdir=LR]
  node [fontname="sans-serif", fontsize=11, shape=box, style=filled]
  edge [fontname="sans-serif", fontsize=10]
)";

std::string_view colorOf(Picture::Box const& box)
{
    if (!box.isValid)
        return "#f2f2f2";
    if (box.owner == "host")
        return "#dcebfa";
    if (box.owner == "native")
        return "#fbe6cf";
    if (box.owner == "shared")
        return "#e2f2d9";
    return box.kind == Picture::Box::Kind::Object ? "#ece4f5" : "#ffffff";
}

std::string_view styleOf(Picture::Box const& box)
{
    if (!box.isValid)
        return ", style=\"filled,dashed\", color=\"#b00020\", fontcolor=\"#7a0016\"";
    switch (box.kind) {
    case Picture::Box::Kind::Class:
        return ", style=\"filled,rounded\"";
    case Picture::Box::Kind::NativeCode:
        return ", shape=ellipse";
    default:
        return "";
    }
}

std::string_view styleOf(Picture::Arrow::Kind kind)
{
    switch (kind) {
    case Picture::Arrow::Kind::Handle:
        return " color=\"#b35900\", style=dashed";
    case Picture::Arrow::Kind::WeakHandle:
        return " color=\"#b35900\", style=dotted";
    case Picture::Arrow::Kind::Superclass:
        return " arrowhead=empty";
    case Picture::Arrow::Kind::Instance:
        return " arrowhead=empty, style=dotted";
    default:
        return "";
    }
}

/// The text, of any bytes, as characters that XML allows.
std::string xmlText(std::string const& text)
{
    if (std::ranges::all_of(text, [](unsigned char c) { return c < 0x80; }))
        return htmlText(text);
    std::u16string units = rowOf(*ArrayPtr(orbis::host_extensions::createText(text)), 0);
    std::ranges::replace_if(
        units, [](char16_t unit) { return unit >= 0xFFFE; }, u'\uFFFD');
    return htmlText(toUtf8(units));
}

/// A label, of texts in the language's subset of HTML: nothing in them is an escape.
std::string label(std::string_view html)
{
    return std::string("label=<").append(html).append(">");
}

std::string labelOf(Picture::Box const& box)
{
    std::string html = "<B>" + xmlText(box.title) + "</B>";
    if (!box.owner.empty())
        html += "<BR/><FONT POINT-SIZE=\"9\">owner: " + xmlText(box.owner) + "</FONT>";
    html += box.lines.empty() ? "" : "<BR/>";
    for (std::string const& line : box.lines)
        html += xmlText(line) + "<BR ALIGN=\"LEFT\"/>";
    return label(html);
}

std::string name(std::size_t box)
{
    return 'n' + std::to_string(box + 1);
}

} // namespace

std::string dotText(Picture const& picture)
{
    std::string text(heading);
    if (!picture.caption.empty())
        text += "  " + label(xmlText(picture.caption)) + '\n';
    for (std::size_t i = 0; i < picture.boxes.size(); ++i) {
        Picture::Box const& box = picture.boxes[i];
        text += "  " + name(i) + " [" + labelOf(box) + ", fillcolor=\"";
        text.append(colorOf(box)).append("\"").append(styleOf(box)).append("]\n");
    }
    for (Picture::Arrow const& arrow : picture.arrows) {
        text += "  " + name(arrow.from) + " -> " + name(arrow.to) + " [";
        text += arrow.label.empty() ? std::string() : label(xmlText(arrow.label));
        text.append(styleOf(arrow.kind)).append("]\n");
    }
    return text + "}\n";
}

} // namespace velmara::console
