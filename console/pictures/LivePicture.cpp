#include "pictures/LivePicture.hpp"

#include "pictures/ObjectPicture.hpp"
#include "pictures/ObjectWalk.hpp"

#include "orbis/objectArrays.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

using Objects = std::vector<orbis::COSInterfacePtr>;

ObjectCounts& countsOf(std::vector<ObjectCounts>& counts, std::string const& className, ClassRecords& classes)
{
    auto const found = std::ranges::find(counts, className, &ObjectCounts::className);
    if (found != counts.end())
        return *found;
    ClassRecord const* const record = classes.find(className);
    return counts.emplace_back(
        ObjectCounts{.className = className, .owner = record ? record->owner : "", .handles = {}});
}

std::vector<ObjectCounts> count(std::span<FoundObject const> objects, HandlesToObjects const& handles,
                                ClassRecords& classes)
{
    std::vector<ObjectCounts> counts;
    for (FoundObject const& object : objects) {
        ObjectCounts& sum = countsOf(counts, object.className, classes);
        ++sum.objects;
        sum.invalid += object.isValid ? 0 : 1;
        if (auto const found = handles.find(object.identity); found != handles.end()) {
            sum.handles.strong += found->second.strong;
            sum.handles.weak += found->second.weak;
        }
    }
    return counts;
}

Picture walk(lua_State* L, Objects objects, PictureOptions const& options, HandlesToObjects const& handles)
{
    HostCall call(L);
    ClassRecords classes(call.hvm());
    ObjectWalk found(L, call, classes, options);
    for (orbis::COSInterfacePtr const& object : objects)
        found.start(object);
    objects.clear(); // the walk holds them
    found.run();
    if (found.isComplete())
        return objectPicture(found.objects(), classes, options, handles);
    Picture picture = classPicture(count(found.objects(), handles, classes), classes, options);
    picture.caption = "the objects that were found first, by their classes";
    return picture;
}

PictureOptions withDepth(PictureOptions options, lua_Integer depth)
{
    if (options.depth == PictureOptions::unset)
        options.depth = depth;
    return options;
}

} // namespace

Picture pictureOf(lua_State* L, Objects objects, PictureOptions const& options, HandlesToObjects const& handles)
{
    return walk(L, std::move(objects), withDepth(options, 3), handles);
}

Picture pictureOfAll(lua_State* L, PictureOptions const& options, HandlesToObjects const& handles)
{
    HostContext& host = HostContext::of(L);
    ClassRecords classes(host.hvm());
    std::vector<ObjectCounts> counts = countLiveObjects(host.hvm());
    Objects objects = destroyedObjects(host);
    std::size_t total = objects.size();
    for (ObjectCounts const& sum : counts)
        total += sum.objects;
    if (total <= static_cast<std::size_t>(options.limit)) {
        Objects const live = liveObjects(host.hvm());
        objects.insert(objects.begin(), live.begin(), live.end());
        return walk(L, std::move(objects), withDepth(options, 1), handles);
    }
    for (orbis::COSInterfacePtr const& object : objects) {
        ObjectCounts& sum = countsOf(counts, className(ArrayPtr(orbis::omCreateORBISScalar(object)).get()), classes);
        ++sum.objects;
        ++sum.invalid;
    }
    Picture picture = classPicture(counts, classes, options);
    picture.caption = std::to_string(total) + " objects, by their classes";
    return picture;
}

} // namespace velmara::console
