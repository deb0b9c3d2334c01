#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"

namespace orbis::factory {

/// A host array, unconverted and shared: each proxy holds a reference, so native code may keep the arrays it receives
/// and return them. Null is allowed. Threading: the reference count is not atomic.
class ORBIS_FACTORY_API hvArrayReferenceCountedProxy {
public:
    hvArrayReferenceCountedProxy();

    /// Adds a reference; the caller keeps its own.
    explicit hvArrayReferenceCountedProxy(hvArray* array);
    hvArrayReferenceCountedProxy(hvArrayReferenceCountedProxy const&);
    hvArrayReferenceCountedProxy& operator=(hvArrayReferenceCountedProxy const&);
    ~hvArrayReferenceCountedProxy();

    /// Compares identity, not contents.
    bool operator==(hvArrayReferenceCountedProxy const& other) const;

    hvArray* operator()() const; ///< the array, or null; stays this proxy's

private:
    hvArray* array_ = nullptr;
};

} // namespace orbis::factory
