#include "orbis/COSNameID.hpp"

#include "values/LiveCounters.hpp"
#include "values/NameTable.hpp"

#include <atomic>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace orbis {

namespace {

/// The names last made from texts at some addresses. Mostly a name is made from one literal again and again: then
/// one comparison with the name found there last is enough. Any entry may be replaced by any thread.
using velmara::Name;

class NamesByAddress {
public:
    Name intern(char const* text)
    {
        std::atomic<Name>& recent = recent_[reinterpret_cast<std::uintptr_t>(text) / 8 % std::size(recent_)];
        Name const known = recent.load(std::memory_order_acquire);
        if (known && std::strcmp(known->text, text) == 0) [[likely]]
            return known;
        return find(text, recent);
    }

private:
    [[gnu::noinline]] static Name find(char const* text, std::atomic<Name>& recent)
    {
        Name const name = velmara::intern(text);
        recent.store(name, std::memory_order_release);
        return name;
    }

    std::atomic<Name> recent_[256] = {};
};

constinit NamesByAddress namesByAddress;

} // namespace

COSNameID::COSNameID(char const* name) : name_(namesByAddress.intern(name ? name : ""))
{
    ++velmara::liveCountsOfThisThread().heldNames;
}

COSNameID::COSNameID(COSNameID const& other) : name_(other.name_)
{
    ++velmara::liveCountsOfThisThread().heldNames;
}

COSNameID& COSNameID::operator=(COSNameID const&) = default;

COSNameID::~COSNameID()
{
    --velmara::liveCountsOfThisThread().heldNames;
}

COSNameID::operator COSString() const
{
    return COSString(name_->text);
}

} // namespace orbis
