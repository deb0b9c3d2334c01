#pragma once

#include <memory>
#include <utility>

namespace velmara {

/// Something published that native code may still be using when it is unpublished. It has its own link for the list of
/// such things, so that unpublishing needs no memory.
class Retirable {
public:
    Retirable() = default;
    Retirable(Retirable const&) = delete;
    Retirable& operator=(Retirable const&) = delete;
    virtual ~Retirable() = default;

private:
    friend class RetiredList;

    std::unique_ptr<Retirable> next_;
};

/// What was unpublished and waits to be destroyed, in that order.
class RetiredList {
public:
    bool empty() const { return !first_; }

    void add(std::unique_ptr<Retirable> retired) noexcept
    {
        Retirable* const added = retired.get();
        (last_ ? last_->next_ : first_) = std::move(retired);
        last_ = added;
    }

    /// Destructors run foreign code, which may add more.
    void destroyAll() noexcept
    {
        while (first_) {
            std::unique_ptr<Retirable> const destroyed = std::move(first_);
            first_ = std::move(destroyed->next_);
            if (!first_)
                last_ = nullptr;
        }
    }

private:
    std::unique_ptr<Retirable> first_;
    Retirable* last_ = nullptr;
};

} // namespace velmara
