#include "pictures/PictureBuilder.hpp"

namespace velmara::console {

namespace {

constexpr std::size_t maxLabels = 40; ///< bytes of several on one arrow
constexpr char const* more = ", ...";

} // namespace

std::size_t PictureBuilder::add(Picture::Box box)
{
    picture_.boxes.push_back(std::move(box));
    return picture_.boxes.size() - 1;
}

void PictureBuilder::addArrow(Picture::Arrow::Kind kind, std::size_t from, std::size_t to, std::string const& label)
{
    auto const [found, isNew] = arrows_.try_emplace({kind, from, to}, picture_.arrows.size());
    if (isNew)
        picture_.arrows.push_back({kind, from, to, label});
    else if (std::string& labels = picture_.arrows[found->second].label; !labels.ends_with(more))
        labels += labels.size() + label.size() < maxLabels ? ", " + label : more;
}

std::size_t PictureBuilder::classBox(std::string const& className)
{
    auto const found = classBoxes_.find(className);
    if (found != classBoxes_.end())
        return found->second;
    std::size_t const box = add({.kind = Picture::Box::Kind::Class, .title = className});
    setClassBox(className, box);
    return box;
}

std::size_t PictureBuilder::addClass(std::string const& className)
{
    for (std::string const& name : classes_.lineage(className)) {
        std::size_t const box = classBox(name);
        ClassRecord const* const record = classes_.find(name);
        if (!record || !derived_.insert(name).second)
            continue;
        for (std::string const& superclass : record->superclasses)
            addArrow(Picture::Arrow::Kind::Superclass, box, classBox(superclass));
    }
    return classBox(className);
}

void PictureBuilder::addHandles(std::size_t box, HandleCounts const& handles)
{
    auto const addCount = [&](Picture::Arrow::Kind kind, int count, std::string const& word) {
        if (count == 0)
            return;
        if (!nativeCode_)
            nativeCode_ = add({.kind = Picture::Box::Kind::NativeCode, .title = "native code"});
        addArrow(kind, *nativeCode_, box, std::to_string(count) + ' ' + word + (count == 1 ? "" : "s"));
    };
    addCount(Picture::Arrow::Kind::Handle, handles.strong, "handle");
    addCount(Picture::Arrow::Kind::WeakHandle, handles.weak, "weak handle");
}

} // namespace velmara::console
