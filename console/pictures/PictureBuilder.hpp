#pragma once

#include "pictures/ClassRecords.hpp"
#include "pictures/LiveObjects.hpp"
#include "pictures/Picture.hpp"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>

namespace velmara::console {

/// Draws boxes and the arrows between them; those of classes and of native code once.
class PictureBuilder {
public:
    explicit PictureBuilder(ClassRecords& classes) : classes_(classes) {}

    ClassRecords& classes() { return classes_; }

    /// Returns the number of the box.
    std::size_t add(Picture::Box box);

    /// Several of one kind between two boxes are one, with all labels.
    void addArrow(Picture::Arrow::Kind kind, std::size_t from, std::size_t to, std::string const& label = {});

    /// Has the class be represented by a box that is there already.
    void setClassBox(std::string const& className, std::size_t box) { classBoxes_[className] = box; }

    /// The box of a class, with arrows to those of its superclasses, and from these on.
    std::size_t addClass(std::string const& className);

    /// Arrows from the box of native code.
    void addHandles(std::size_t box, HandleCounts const& handles);

    Picture& picture() { return picture_; }

private:
    std::size_t classBox(std::string const& className);

    ClassRecords& classes_;
    Picture picture_;
    std::map<std::tuple<Picture::Arrow::Kind, std::size_t, std::size_t>, std::size_t> arrows_;
    std::map<std::string, std::size_t> classBoxes_;
    std::set<std::string> derived_; ///< classes with arrows to their superclasses
    std::optional<std::size_t> nativeCode_;
};

} // namespace velmara::console
