#include "reference/ClassDiagram.hpp"

#include "reference/HtmlText.hpp"
#include "text/DisplayWidth.hpp"

#include <algorithm>
#include <map>

namespace velmara::console {

namespace {

constexpr int rowHeight = 80;
constexpr int boxHeight = 32;
constexpr int gap = 24;

struct Box {
    DiagramClass const* cls = nullptr;
    int level = 0;
    int left = 0;
    int width = 0;
};

using Boxes = std::map<std::string, Box>; ///< by their pages

int levelOf(std::string const& page, Boxes& boxes, std::size_t depth = 0)
{
    Box& box = boxes.at(page);
    if (box.level != 0 || depth > boxes.size())
        return box.level;
    int level = 1;
    for (std::string const& superclass : box.cls->superclasses)
        if (boxes.contains(superclass))
            level = std::max(level, levelOf(superclass, boxes, depth + 1) + 1);
    return box.level = level;
}

/// The classes with a superclass or a subclass among the given ones.
Boxes relatedOf(std::span<DiagramClass const> classes)
{
    Boxes boxes;
    for (DiagramClass const& cls : classes)
        boxes[cls.page].cls = &cls;
    Boxes related;
    for (DiagramClass const& cls : classes)
        for (std::string const& superclass : cls.superclasses)
            if (boxes.contains(superclass)) {
                related[cls.page].cls = &cls;
                related[superclass].cls = boxes[superclass].cls;
            }
    return related;
}

/// A row for each level, from the left in the order of the classes. Returns the width of all.
int place(std::span<DiagramClass const> classes, Boxes& boxes)
{
    std::map<int, int> next;
    int width = 0;
    for (DiagramClass const& cls : classes) {
        auto const found = boxes.find(cls.page);
        if (found == boxes.end())
            continue;
        Box& box = found->second;
        int const level = levelOf(cls.page, boxes);
        box.width = 24 + 9 * static_cast<int>(displayWidth(cls.name));
        box.left = gap + next[level];
        next[level] += box.width + gap;
        width = std::max(width, next[level] + gap);
    }
    return width;
}

std::string number(char const* name, int value)
{
    return std::string(" ").append(name).append("=\"").append(std::to_string(value)).append("\"");
}

std::string lineBetween(Box const& superclass, Box const& cls)
{
    return "<line" + number("x1", superclass.left + superclass.width / 2) +
           number("y1", (superclass.level - 1) * rowHeight + gap + boxHeight) + number("x2", cls.left + cls.width / 2) +
           number("y2", (cls.level - 1) * rowHeight + gap) + "/>\n";
}

std::string boxElement(Box const& box)
{
    int const top = (box.level - 1) * rowHeight + gap;
    return "<a href=\"" + box.cls->page + ".html\"><rect" + number("x", box.left) + number("y", top) +
           number("width", box.width) + number("height", boxHeight) + " rx=\"4\"/><text" +
           number("x", box.left + box.width / 2) + number("y", top + 21) + ">" + htmlText(box.cls->name) +
           "</text></a>\n";
}

} // namespace

std::string classDiagram(std::span<DiagramClass const> classes)
{
    Boxes boxes = relatedOf(classes);
    if (boxes.empty())
        return {};
    int const width = place(classes, boxes);
    int levels = 0;
    std::string lines;
    std::string rectangles;
    for (auto const& [page, box] : boxes) {
        levels = std::max(levels, box.level);
        for (std::string const& superclass : box.cls->superclasses)
            if (auto const found = boxes.find(superclass); found != boxes.end())
                lines += lineBetween(found->second, box);
        rectangles += boxElement(box);
    }
    std::string text = "<div class=\"diagram\" tabindex=\"0\" role=\"region\" aria-label=\"Class diagram\">\n<svg";
    text += number("width", width) + number("height", levels * rowHeight) + ">\n";
    return text + lines + rectangles + "</svg>\n</div>\n";
}

} // namespace velmara::console
