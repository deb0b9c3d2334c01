#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/Enumeration.hpp"

#include <cstddef>
#include <span>
#include <vector>

namespace orbis::factory {

/// An enumeration of any number of host objects. Holds no references.
class ORBIS_FACTORY_API InterfaceListEnumeration final : public EnumerationImplementation<COSInterface*> {
public:
    /// Returns the host objects bound to the addresses, in order; unbound addresses are skipped. Throws the host's
    /// `bad_alloc`.
    static Enumeration<COSInterface*> ofBound(std::span<void const* const> objects);

    /// Storage of the host; throws its `bad_alloc`.
    static void* operator new(std::size_t size);
    static void operator delete(void* storage); ///< null is allowed

    ~InterfaceListEnumeration() override;

    /// False at the end.
    bool hasMoreElements() const override;

    /// Throws the host's `ENoElements` past the end.
    COSInterface* nextElement() override;

private:
    explicit InterfaceListEnumeration(std::span<void const* const> objects);

    std::vector<COSInterface*> elements_;
    std::size_t position_ = 0;
};

} // namespace orbis::factory
