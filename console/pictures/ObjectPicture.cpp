#include "pictures/ObjectPicture.hpp"

#include "bindings/MemberRecords.hpp"
#include "help/TypeNames.hpp"
#include "pictures/PictureBuilder.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

std::string ownerOf(std::string const& className, ClassRecords& classes)
{
    ClassRecord const* const record = classes.find(className);
    return record ? record->owner : "";
}

Picture::Box boxOf(FoundObject const& object, ClassRecords& classes)
{
    Picture::Box box{.title = (object.isValid ? "" : "invalid ") + object.className,
                     .owner = object.isValid ? ownerOf(object.className, classes) : "",
                     .lines = object.properties,
                     .isValid = object.isValid};
    if (!object.text.empty())
        box.lines.insert(box.lines.begin(), object.text);
    return box;
}

Picture::Box boxOf(ObjectCounts const& count)
{
    std::vector<std::string> lines{std::to_string(count.objects) + (count.objects == 1 ? " object" : " objects")};
    if (count.invalid > 0)
        lines.push_back(std::to_string(count.invalid) + " invalid");
    return {.title = count.className, .owner = count.owner, .lines = lines, .isValid = count.invalid < count.objects};
}

/// Arrows from the box of a class to the boxes of those that its properties are declared to hold; `lineages` are those
/// of the boxes.
void addDeclaredLinks(PictureBuilder& builder, std::size_t from, ClassRecord const& cls,
                      std::span<std::vector<std::string> const> lineages)
{
    for (PropertyRecord const& property : cls.properties) {
        if (!isListed(property) || property.isStatic)
            continue;
        TypeNames const names = namesIn(property.dataType);
        for (std::size_t to = 0; to < lineages.size(); ++to)
            if (std::ranges::any_of(lineages[to], [&](std::string const& name) { return names.contains(name); }))
                builder.addArrow(Picture::Arrow::Kind::Property, from, to, property.name);
    }
}

} // namespace

Picture objectPicture(std::span<FoundObject const> objects, ClassRecords& classes, PictureOptions const& options,
                      HandlesToObjects const& handles)
{
    PictureBuilder builder(classes);
    for (FoundObject const& object : objects)
        builder.add(boxOf(object, classes));
    for (std::size_t i = 0; i < objects.size(); ++i) {
        for (FoundObject::Link const& link : objects[i].links)
            builder.addArrow(Picture::Arrow::Kind::Property, i, link.target, link.property);
        if (auto const found = handles.find(objects[i].identity); found != handles.end())
            builder.addHandles(i, found->second);
        if (options.showsSuperclasses)
            builder.addArrow(Picture::Arrow::Kind::Instance, i, builder.addClass(objects[i].className));
    }
    return builder.picture();
}

Picture classPicture(std::span<ObjectCounts const> counts, ClassRecords& classes, PictureOptions const& options)
{
    PictureBuilder builder(classes);
    std::vector<std::vector<std::string>> lineages;
    for (ObjectCounts const& count : counts) {
        builder.setClassBox(count.className, builder.add(boxOf(count)));
        lineages.push_back(classes.lineage(count.className));
    }
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (ClassRecord const* const cls = classes.find(counts[i].className))
            addDeclaredLinks(builder, i, *cls, lineages);
        if (options.showsHandles)
            builder.addHandles(i, counts[i].handles);
        if (options.showsSuperclasses)
            builder.addClass(counts[i].className);
    }
    return builder.picture();
}

} // namespace velmara::console
