#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/types/hvArrayProxy.hpp"
#include "orbis/factory/types/hvArrayReferenceCountedProxy.hpp"
#include "orbis/factory/types/hvConstArrayProxy.hpp"

#include <string>

namespace orbis::factory::samples {

/// A cloakroom with two hooks for host arrays of any class, kept unconverted. Each virtual machine owns one.
class C1 : public full::Wrappable {
public:
    static C1* cloakroom();

    /// Shares ownership of the arrays. Null clears a hook.
    void hang(hvArrayReferenceCountedProxy const& left, hvArrayReferenceCountedProxy const& right);
    hvArrayReferenceCountedProxy left() const { return left_; }
    hvArrayReferenceCountedProxy right() const { return right_; }

    /// Makes both hooks share one array.
    void mirrorLeft() { right_ = left_; }
    bool isOneArray() const { return left_ == right_; }

    /// Describes an array: its size, and whether it holds exactly one object.
    static std::string label(hvConstArrayProxy const& array);

    /// Returns a new array: a deep copy.
    static hvArrayProxy tailor(hvArrayProxy const& array);

private:
    hvArrayReferenceCountedProxy left_;
    hvArrayReferenceCountedProxy right_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::C1> {
    static constexpr char const* name = "orbis_factory.P1.C1";
};

namespace orbis::factory::samples {

class C1Wrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    C1Wrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
