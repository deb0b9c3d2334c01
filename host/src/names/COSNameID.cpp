#include "orbis/COSNameID.hpp"

#include "memory/ThreadCache.hpp"
#include "names/NameTable.hpp"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orbis {

namespace {

using velmara::Name;

/// The names last created from texts at some addresses. Mostly the text is one literal again and again: then it is
/// compared with one name, and not hashed. Any thread may replace any entry.
class NamesByAddress {
public:
    /// The name last created from a text at this address, or null. That may have been another text.
    Name recent(char const* text) const { return recent_[indexOf(text)].load(std::memory_order_acquire); }

    [[gnu::noinline]] Name find(char const* text)
    {
        Name const name = velmara::intern(text ? text : "");
        recent_[indexOf(text)].store(name, std::memory_order_release);
        return name;
    }

private:
    static constexpr std::size_t capacity = 256;

    static std::size_t indexOf(char const* text) { return reinterpret_cast<std::uintptr_t>(text) / 8 % capacity; }

    std::atomic<Name> recent_[capacity] = {};
};

constinit NamesByAddress namesByAddress;

} // namespace

COSNameID::COSNameID(char const* name) : name_(namesByAddress.recent(name))
{
    if (!name_ || !name || std::strcmp(name_->text, name) != 0) [[unlikely]]
        name_ = namesByAddress.find(name);
    ++velmara::currentLiveCounts().heldNames;
}

COSNameID::COSNameID(COSNameID const& other) : name_(other.name_)
{
    ++velmara::currentLiveCounts().heldNames;
}

COSNameID& COSNameID::operator=(COSNameID const&) = default;

COSNameID::~COSNameID()
{
    --velmara::currentLiveCounts().heldNames;
}

COSNameID::operator COSString() const
{
    return COSString(name_->text);
}

} // namespace orbis
