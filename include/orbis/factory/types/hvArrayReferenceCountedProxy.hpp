#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"

namespace orbis::factory {

/// A host array as it is, shared: each proxy holds one reference, so native code may keep arrays that it was given,
/// and give them back as results. Null is allowed. Threading: the count is a plain integer.
class ORBIS_FACTORY_API hvArrayReferenceCountedProxy {
public:
    hvArrayReferenceCountedProxy();

    /// Adds a reference; the caller keeps its own.
    explicit hvArrayReferenceCountedProxy(hvArray* array);
    hvArrayReferenceCountedProxy(hvArrayReferenceCountedProxy const&);
    hvArrayReferenceCountedProxy& operator=(hvArrayReferenceCountedProxy const&);
    ~hvArrayReferenceCountedProxy();

    /// True for the same array, not for equal ones.
    bool operator==(hvArrayReferenceCountedProxy const& other) const;

    hvArray* operator()() const;

private:
    hvArray* array_ = nullptr;
};

} // namespace orbis::factory
