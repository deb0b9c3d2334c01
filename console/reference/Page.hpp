#pragma once

#include <string>
#include <vector>

namespace velmara::console {

/// A part of a line; with the page and the place on it that it leads to, where it does.
struct Piece {
    std::string text;
    std::string page;
    std::string place;
};

using Line = std::vector<Piece>;

/// A member, or what else is listed.
struct Entry {
    std::string name;
    std::string kind;
    std::string place; ///< unique on its page; empty for what has a page
    Line line;
    std::string text;
    Line note;
};

struct Section {
    std::string title;
    std::vector<Entry> entries;
};

/// A class of a diagram, and its superclasses by their pages.
struct DiagramClass {
    std::string name;
    std::string page;
    std::vector<std::string> superclasses;
};

/// A page of the reference, whatever it is written as. All texts are as they were published.
struct Page {
    std::string page; ///< its file without the ending
    std::string kind;
    std::string name;
    std::string text;
    Line trail; ///< of pages to this one
    std::vector<Line> facts;
    std::vector<DiagramClass> diagram;
    std::vector<Section> sections;
};

} // namespace velmara::console
