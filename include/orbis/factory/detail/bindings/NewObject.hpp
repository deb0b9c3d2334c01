#pragma once

#include <utility>

namespace orbis::factory::detail {

/// Owner of a new native object: deletes it unless it is released. Unlike `std::unique_ptr`, it does not make every
/// module compile `<memory>`.
template <class T>
class NewObject {
public:
    explicit NewObject(T* object = nullptr) : object_(object) {}
    NewObject(NewObject&& other) noexcept : object_(other.release()) {}
    NewObject& operator=(NewObject&&) = delete;

    ~NewObject() { delete object_; }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    T* release() { return std::exchange(object_, nullptr); }

private:
    T* object_;
};

} // namespace orbis::factory::detail
