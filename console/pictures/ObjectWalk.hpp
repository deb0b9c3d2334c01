#pragma once

#include "lua/LuaApi.hpp"
#include "pictures/ClassRecords.hpp"
#include "pictures/PictureOptions.hpp"
#include "show/NativeReading.hpp"
#include "values/HostCall.hpp"

#include "orbis/COSInterfacePtr.hpp"

#include <string>
#include <unordered_map>
#include <vector>

namespace velmara::console {

/// One object that was found, and what its properties hold.
struct FoundObject {
    struct Link {
        std::string property;
        std::size_t target; ///< of the found objects
    };

    orbis::COSInterface* identity;
    hvArray_tag* array; ///< the object in an array of its own, held by the walk's call
    lua_Integer distance;
    std::string className;
    bool isValid;
    std::string text; ///< of the class's author, may be empty
    std::vector<std::string> properties = {};
    std::vector<Link> links = {};
};

/// Goes from object to object along what their properties hold: each is found once, those that are next first. A
/// property that cannot be read stops nothing. Ctrl-C does, between two of them.
class ObjectWalk {
public:
    /// The `call` holds the objects for its own length.
    ObjectWalk(lua_State* L, HostCall& call, ClassRecords& classes, PictureOptions const& options);

    /// An object to start from; enumerators are ignored.
    void start(orbis::COSInterface* object) { add(object, 0); }

    void run();

    std::vector<FoundObject> const& objects() const { return objects_; }

    /// False when there are more objects than may have a box: then the walk has stopped, but has all to start from.
    bool isComplete() const { return isComplete_; }

private:
    using Held = std::vector<orbis::COSInterfacePtr>;

    void add(orbis::COSInterface* object, lua_Integer distance);
    void read(std::size_t index);
    void readProperty(std::size_t index, PropertyRecord const& property);
    bool link(std::size_t index, std::string const& property, Held const& targets);
    void addLine(std::size_t index, std::string const& line);

    lua_State* L_;
    HostCall& call_;
    ClassRecords& classes_;
    PictureOptions const& options_;
    std::vector<FoundObject> objects_;
    std::unordered_map<orbis::COSInterface const*, std::size_t> indices_;
    bool isComplete_ = true;
};

} // namespace velmara::console
