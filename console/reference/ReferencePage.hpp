#pragma once

#include <string>
#include <vector>

namespace velmara::console {

/// A part of a line; with the page and the place on it that it leads to, where it does.
struct PagePiece {
    std::string text;
    std::string page;
    std::string place;
};

using PageLine = std::vector<PagePiece>;

/// A member, or what else is listed.
struct PageEntry {
    std::string name;
    std::string kind;
    std::string place; ///< unique on its page; empty for what has a page
    PageLine line;
    std::string text;
    PageLine note;
};

struct PageSection {
    std::string title;
    std::vector<PageEntry> entries;
};

/// A class of a diagram, and its superclasses by their pages.
struct DiagramClass {
    std::string name;
    std::string page;
    std::vector<std::string> superclasses;
};

/// A page of the reference, whatever it is written as. All texts are as they were published.
struct ReferencePage {
    std::string page; ///< its file without the ending
    std::string kind;
    std::string name;
    std::string text;
    PageLine trail; ///< of pages to this one
    std::vector<PageLine> facts;
    std::vector<DiagramClass> diagram;
    std::vector<PageSection> sections;
};

} // namespace velmara::console
