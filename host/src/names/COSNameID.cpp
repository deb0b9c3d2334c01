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

/// The names last made from texts at some addresses. Mostly a name is made from one literal again and again: then
/// one comparison with the name found there last is enough. Any entry may be replaced by any thread.
class NamesByAddress {
public:
    /// The name last made from a text at this address, or null. It may have been made from another text.
    Name recent(char const* text) const { return recent_[placeOf(text)].load(std::memory_order_acquire); }

    [[gnu::noinline]] Name find(char const* text)
    {
        Name const name = velmara::intern(text ? text : "");
        recent_[placeOf(text)].store(name, std::memory_order_release);
        return name;
    }

private:
    static constexpr std::size_t room = 256;

    static std::size_t placeOf(char const* text) { return reinterpret_cast<std::uintptr_t>(text) / 8 % room; }

    std::atomic<Name> recent_[room] = {};
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
