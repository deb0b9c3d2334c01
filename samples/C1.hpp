#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/types/hvArrayProxy.hpp"
#include "orbis/factory/types/hvArrayReferenceCountedProxy.hpp"
#include "orbis/factory/types/hvConstArrayProxy.hpp"

#include <string>

namespace orbis::factory::samples {

/// A cloakroom with two hooks, on which any arrays of the host can hang, as they are. Every virtual machine has one,
/// and owns it.
class C1 : public full::Wrappable {
public:
    static C1* cloakroom();

    /// Shares the arrays with whoever else has them; null takes down what hung there.
    void hang(hvArrayReferenceCountedProxy const& left, hvArrayReferenceCountedProxy const& right);
    hvArrayReferenceCountedProxy left() const { return left_; }
    hvArrayReferenceCountedProxy right() const { return right_; }

    /// From then on one array hangs on both.
    void mirrorLeft() { right_ = left_; }
    bool isOneArray() const { return left_ == right_; }

    /// Looks at an array: its sizes, and whether it holds exactly one object.
    static std::string label(hvConstArrayProxy const& array);

    /// A new array: a copy, with all arrays in it copied, too.
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
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts make none
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
