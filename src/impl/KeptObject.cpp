#include "orbis/factory/detail/members/KeptObject.hpp"

#include <atomic>

namespace orbis::factory::detail {

struct KeptObject::Block {
    void const* object;
    void (*destroy)(void const*);
    std::atomic<unsigned int> references = 1;
};

KeptObject::KeptObject(void const* object, void (*destroy)(void const*))
{
    try {
        block_ = new Block{object, destroy};
    } catch (...) {
        destroy(object);
        throw;
    }
}

KeptObject::KeptObject(KeptObject const& other) noexcept : block_(other.block_)
{
    if (block_)
        block_->references.fetch_add(1, std::memory_order_relaxed);
}

KeptObject& KeptObject::operator=(KeptObject other) noexcept
{
    std::swap(block_, other.block_);
    return *this;
}

KeptObject::~KeptObject()
{
    if (block_ && block_->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        block_->destroy(block_->object);
        delete block_;
    }
}

void const* KeptObject::get() const
{
    return block_ ? block_->object : nullptr;
}

} // namespace orbis::factory::detail
