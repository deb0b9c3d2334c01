#pragma once

#include "orbis/factory/base/export.hpp"

#include <utility>

namespace orbis::factory::detail {

/// A counted reference to a constant object of any type, which is destroyed with the last one; may be empty. Threading:
/// as for `std::shared_ptr`.
class KeptObject {
public:
    KeptObject() = default;

    template <class T>
    static KeptObject make(T object)
    {
        return KeptObject(new T(std::move(object)), [](void const* kept) { delete static_cast<T const*>(kept); });
    }

    ORBIS_FACTORY_API KeptObject(KeptObject const& other) noexcept;
    KeptObject(KeptObject&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    ORBIS_FACTORY_API KeptObject& operator=(KeptObject other) noexcept;
    ORBIS_FACTORY_API ~KeptObject();

    /// The object, whose type is not known here; null when there is none.
    ORBIS_FACTORY_API void const* get() const;
    explicit operator bool() const { return block_ != nullptr; }

private:
    struct Block;

    /// Takes `object`; destroys it if there is no memory.
    ORBIS_FACTORY_API KeptObject(void const* object, void (*destroy)(void const*));

    Block* block_ = nullptr;
};

} // namespace orbis::factory::detail
