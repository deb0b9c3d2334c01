#include "pictures/ObjectWalk.hpp"

#include "bindings/MemberRecords.hpp"
#include "handles/ContainedObjects.hpp"
#include "lua/InterruptPoint.hpp"
#include "show/Summary.hpp"
#include "text/CutText.hpp"

#include <unordered_set>

namespace velmara::console {

namespace {

constexpr std::size_t maxLineWidth = 40;

bool isEnumerator(orbis::COSInterface* object)
{
    return orbis::host_extensions::describeEnumerator(object) != nullptr;
}

bool isShown(PropertyRecord const& property)
{
    return property.isVisible && !property.isStatic && isReadable(property);
}

} // namespace

ObjectWalk::ObjectWalk(lua_State* L, HostCall& call, ClassRecords& classes, PictureOptions const& options)
    : L_(L),
      call_(call),
      classes_(classes),
      options_(options)
{
}

void ObjectWalk::add(orbis::COSInterface* object, lua_Integer distance)
{
    if (!object || isEnumerator(object) || indices_.contains(object))
        return;
    if (objects_.size() >= static_cast<std::size_t>(options_.limit)) {
        isComplete_ = false;
        if (distance > 0)
            return;
    }
    hvArray_tag* const array = call_.share(ArrayPtr(orbis::omCreateORBISScalar(object)).get());
    indices_.emplace(object, objects_.size());
    objects_.push_back({object, array, distance, className(array), isValid(array), {}});
}

void ObjectWalk::run()
{
    if (HostContext::of(L_).isShowing())
        return; // a getter could draw its own object over and over
    for (std::size_t i = 0; i < objects_.size() && isComplete_; ++i)
        if (objects_[i].isValid)
            read(i);
}

void ObjectWalk::read(std::size_t index)
{
    ClassRecord const* const cls = classes_.find(objects_[index].className);
    if (!cls)
        return;
    std::string const text = authorsText(L_, objects_[index].array, *cls);
    objects_[index].text = cutText(text, maxLineWidth);
    for (PropertyRecord const& property : cls->properties)
        if (isShown(property) && isComplete_)
            readProperty(index, property);
}

void ObjectWalk::readProperty(std::size_t index, PropertyRecord const& property)
{
    letInterrupt(L_);
    Held targets;
    std::string value;
    {
        NativeReading const reading = readForShow(L_, objects_[index].array, property.name);
        value = summary(L_, reading);
        visitObjects(reading.value(), [&](orbis::COSInterface* object) {
            if (object && !isEnumerator(object))
                targets.emplace_back(object);
        });
    }
    if (targets.empty() || !link(index, property.name, targets))
        addLine(index, property.name + " = " + value);
}

/// Links the object with the targets, as far as these are near enough; returns whether all of them are.
bool ObjectWalk::link(std::size_t index, std::string const& property, Held const& targets)
{
    lua_Integer const distance = objects_[index].distance;
    std::unordered_set<std::size_t> linked;
    bool hasAll = true;
    for (orbis::COSInterfacePtr const& target : targets) {
        if (distance < options_.depth)
            add(target, distance + 1);
        auto const found = indices_.find(target);
        if (found == indices_.end())
            hasAll = false;
        else if (linked.insert(found->second).second)
            objects_[index].links.push_back({property, found->second});
    }
    return hasAll;
}

void ObjectWalk::addLine(std::size_t index, std::string const& line)
{
    auto& lines = objects_[index].properties;
    auto const limit = static_cast<std::size_t>(options_.properties);
    if (lines.size() < limit)
        lines.push_back(cutText(escapedText(line), maxLineWidth));
    else if (lines.size() == limit && limit > 0)
        lines.emplace_back("...");
}

} // namespace velmara::console
