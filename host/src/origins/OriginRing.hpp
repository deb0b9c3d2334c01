#pragma once

#include "origins/OriginTable.hpp"

namespace velmara {

/// The origin of one array, in the memory behind it, and its place among those of its virtual machine. Destroyed with
/// the array.
class OriginLink {
public:
    explicit OriginLink(OriginTable::Number origin) : origin_(origin) {}
    OriginLink(OriginLink const&) = delete;
    OriginLink& operator=(OriginLink const&) = delete;
    ~OriginLink() { leave(); }

    OriginTable::Number origin() const { return origin_; }

private:
    friend class OriginRing;

    void leave()
    {
        previous_->next_ = next_;
        next_->previous_ = previous_;
        previous_ = next_ = this;
    }

    OriginTable::Number origin_;
    OriginLink* previous_ = this;
    OriginLink* next_ = this;
};

/// The links of one virtual machine. Arrays may outlive it: their links are a ring without it then.
class OriginRing {
public:
    OriginRing() = default;
    OriginRing(OriginRing const&) = delete;
    OriginRing& operator=(OriginRing const&) = delete;

    void add(OriginLink& link)
    {
        link.previous_ = head_.previous_;
        link.next_ = &head_;
        head_.previous_->next_ = &link;
        head_.previous_ = &link;
    }

    /// Calls `visit` with each link, the oldest first; the ring must not change meanwhile.
    template <class Visit>
    void forEach(Visit const& visit) const
    {
        for (OriginLink const* link = head_.next_; link != &head_; link = link->next_)
            visit(*link);
    }

private:
    OriginLink head_{0};
};

} // namespace velmara
