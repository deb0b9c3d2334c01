#pragma once

#include "objects/Object.hpp"

namespace velmara {

/// The objects of one class that are not finalized. Each has the links of its own.
class ObjectList {
public:
    ObjectList() = default;
    ObjectList(ObjectList const&) = delete;
    ObjectList& operator=(ObjectList const&) = delete;

    void add(Object& object)
    {
        object.next_ = first_;
        if (first_)
            first_->previous_ = &object;
        first_ = &object;
    }

    void remove(Object& object)
    {
        (object.previous_ ? object.previous_->next_ : first_) = object.next_;
        if (object.next_)
            object.next_->previous_ = object.previous_;
        object.previous_ = object.next_ = nullptr;
    }

    /// An object leaves the list when its finalization begins.
    void finalizeAll()
    {
        while (first_)
            first_->finalize();
    }

    /// Calls `visit` with each object, the oldest first; the list must not change meanwhile.
    template <class Visit>
    void forEach(Visit const& visit) const
    {
        Object* object = first_;
        while (object && object->next_)
            object = object->next_;
        for (; object; object = object->previous_)
            visit(*object);
    }

private:
    Object* first_ = nullptr;
};

} // namespace velmara
