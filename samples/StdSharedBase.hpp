#pragma once

#include "orbis/factory/classes/StdShareableHandleClassInfo.hpp"

#include <string>
#include <vector>

namespace orbisFactoryStdSharedTests {

/// A dancer at a ball, owned through `std::shared_ptr`. Partners refer to each other by `std::weak_ptr`: two that owned
/// each other would never be destroyed.
class StdSharedBase : public orbis::factory::full::StdShareable {
public:
    using Pointer = std::shared_ptr<StdSharedBase>;

    explicit StdSharedBase(std::string name);

    std::string const& name() const { return name_; }
    virtual std::string role() const;

    Pointer partner() const { return partner_.lock(); }

    /// Makes the two partners; each leaves a former partner. Null ends the partnership.
    void setPartner(Pointer const& partner);

    StdSharedBase* self() { return this; }
    int holders() const;

    /// Created by native code, which keeps no share.
    static Pointer invite(std::string const& name, bool leads);

    static std::vector<Pointer> inOrder(std::vector<StdSharedBase*> const& dancers);

private:
    std::string name_;
    std::weak_ptr<StdSharedBase> partner_;
};

/// A dancer who leads.
class StdSharedDerived : public StdSharedBase {
public:
    using StdSharedBase::StdSharedBase;

    std::string role() const override;

    /// Null if there is no partner, or the partner does not lead.
    std::shared_ptr<StdSharedDerived> rival() const;
};

} // namespace orbisFactoryStdSharedTests

template <>
struct orbis::factory::HostClass<orbisFactoryStdSharedTests::StdSharedBase> {
    static constexpr char const* name = "orbis_factory.StdSharedBase";
};
template <>
struct orbis::factory::HostClass<orbisFactoryStdSharedTests::StdSharedDerived> {
    static constexpr char const* name = "orbis_factory.StdSharedDerived";
};

namespace orbisFactoryStdSharedTests {

class CosStdSharedBase final : public orbis::factory::StdShareableHandleClassInfo<StdSharedBase> {
public:
    CosStdSharedBase();
    void initializeClass(orbis::COSClass* cls) override;
};

class CosStdSharedDerived final : public orbis::factory::StdShareableHandleClassInfo<StdSharedDerived> {
public:
    CosStdSharedDerived();
    void initializeClass(orbis::COSClass* cls) override;
};

} // namespace orbisFactoryStdSharedTests
