#pragma once

#include <cstddef>

namespace orbis::factory::basic {

/// Where native objects lie that nobody can delete. For debugging: it is slow.
class NativeStorage {
public:
    NativeStorage();

    /// Returns where an object lies that is no one's to delete: "on the stack" of this thread, or "in static storage";
    /// null for other objects.
    char const* placeOf(void const* object) const;

private:
    void const* stackBegin_ = nullptr;
    void const* stackEnd_ = nullptr;
};

/// For class infos that know where the objects of their class begin and end.
struct NativeExtents {
    struct Extent {
        char const* begin;
        std::size_t size;
    };

    virtual ~NativeExtents() = default;

    /// Returns the extent of the object that is bound at the address, as far as the class knows it.
    virtual Extent extentOf(void* bound) const = 0;
};

} // namespace orbis::factory::basic
