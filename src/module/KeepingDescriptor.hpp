#pragma once

#include <memory>
#include <utility>

namespace orbis::factory {

/// A descriptor that keeps alive what its callable points to.
template <class Descriptor>
class KeepingDescriptor final : public Descriptor {
public:
    template <class... A>
    explicit KeepingDescriptor(std::shared_ptr<void const> kept, A&&... arguments)
        : Descriptor(std::forward<A>(arguments)...),
          kept_(std::move(kept))
    {
    }

private:
    std::shared_ptr<void const> kept_;
};

/// A descriptor made of `arguments`, which keeps what there is to be kept.
template <class Descriptor, class... A>
std::unique_ptr<Descriptor> makeDescriptor(std::shared_ptr<void const> const& kept, A&&... arguments)
{
    if (kept)
        return std::make_unique<KeepingDescriptor<Descriptor>>(kept, std::forward<A>(arguments)...);
    return std::make_unique<Descriptor>(std::forward<A>(arguments)...);
}

} // namespace orbis::factory
