#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <set>

namespace orbis::factory::basic {

/// Shares in objects that other objects refer to, each once.
using KeptObjects = std::set<std::shared_ptr<void>, std::owner_less<std::shared_ptr<void>>>;

/// What objects of native code keep.
class KeptForNative {
public:
    /// What an object keeps of which native code has made shared pointers, at most until the last of these is gone; for
    /// null, what native code keeps until the virtual machine ends. Throws `std::bad_alloc`.
    KeptObjects& of(std::shared_ptr<void> const& keeper)
    {
        if (!keeper)
            return kept_;
        if (byKeeper_.size() >= nextSweep_) {
            std::erase_if(byKeeper_, [](auto const& entry) { return entry.first.expired(); });
            nextSweep_ = 2 * byKeeper_.size() + 16;
        }
        return byKeeper_[keeper];
    }

private:
    KeptObjects kept_;
    std::map<std::weak_ptr<void>, KeptObjects, std::owner_less<std::weak_ptr<void>>> byKeeper_;
    std::size_t nextSweep_ = 16;
};

} // namespace orbis::factory::basic
