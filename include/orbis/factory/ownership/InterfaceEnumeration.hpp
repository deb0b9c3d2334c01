#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/Enumeration.hpp"

#include <cstddef>
#include <cstdint>

namespace orbis::factory {

/// An enumeration of at most one host object. Holds no reference.
class ORBIS_FACTORY_API InterfaceEnumeration final : public EnumerationImplementation<COSInterface*> {
public:
    /// Returns zero-filled storage; throws the host's `bad_alloc`.
    static void* operator new(std::size_t size);
    static void operator delete(void* storage); ///< null is allowed

    /// Refers to `element` (null: no element) without keeping it alive.
    explicit InterfaceEnumeration(COSInterface* element);
    ~InterfaceEnumeration() override;

    bool hasMoreElements() const override; ///< true until it was taken

    /// Returns the object the first time, then throws the host's `ENoElements`.
    COSInterface* nextElement() override;

    /// The number of live instances in the process.
    static std::int64_t liveCount();

private:
    COSInterface* pending_;
};

} // namespace orbis::factory
