#pragma once

#include "orbis/ENoElements.hpp"

#include <atomic>
#include <cstdint>
#include <utility>

namespace orbis {

/// What stands behind an enumeration handle. A subclass gives its storage back itself (its `operator delete`).
/// The number of handles that share it is kept atomically and starts at 0.
template <class T>
class EnumerationImplementation {
public:
    virtual ~EnumerationImplementation() = default;
    virtual bool hasMoreElements() const = 0; ///< false at the end

    /// The next element; throws `ENoElements` past the end.
    virtual T nextElement() = 0;

    /// Counts a handle more, on any thread.
    void addHandle() { handles_.fetch_add(1, std::memory_order_relaxed); }

    /// Counts one less; the last one deletes this.
    void removeHandle()
    {
        if (handles_.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

private:
    std::atomic<std::uint32_t> handles_{0};
};

/// A handle through which lists are handed over. Copies share one position; an empty handle has no elements.
template <class T>
class Enumeration {
public:
    Enumeration() = default;

    /// Takes one count on `implementation`; the last handle to go deletes it. Null gives an empty handle.
    explicit Enumeration(EnumerationImplementation<T>* implementation) : implementation_(implementation)
    {
        if (implementation_)
            implementation_->addHandle();
    }

    Enumeration(Enumeration const& other) : Enumeration(other.implementation_) {}
    Enumeration(Enumeration&& other) noexcept : implementation_(std::exchange(other.implementation_, nullptr)) {}

    Enumeration& operator=(Enumeration other) noexcept
    {
        std::swap(implementation_, other.implementation_);
        return *this;
    }

    ~Enumeration()
    {
        if (implementation_)
            implementation_->removeHandle();
    }

    /// False at the end, and for an empty handle.
    bool hasMoreElements() const { return implementation_ && implementation_->hasMoreElements(); }

    /// The next element; throws `ENoElements` past the end, and for an empty handle.
    T nextElement()
    {
        if (!implementation_)
            throw ENoElements();
        return implementation_->nextElement();
    }

private:
    EnumerationImplementation<T>* implementation_ = nullptr;
};

} // namespace orbis
