#pragma once

#include "orbis/factory/classes/ShareableHandleClassInfo.hpp"

#include <string>
#include <vector>

namespace orbisFactorySharedTests {

/// A book of a library, owned through `boost::shared_ptr` by the shelf, in native code, and by the scripts that borrow
/// it. It is destroyed when the last of them releases it.
class SharedBase : public orbis::factory::full::Shareable {
public:
    using Pointer = boost::shared_ptr<SharedBase>;

    explicit SharedBase(std::string title);

    std::string const& title() const { return title_; }
    virtual std::string label() const;

    /// The number of owners: the shelf once per place, a host object once, a reservation once.
    int holders() const;

    /// Keeps the book alive in this virtual machine, even without other owners.
    void reserve();
    void cancelReservation();

    // The shelf of this virtual machine: books are passed as shared pointers and as raw ones.
    static void shelve(Pointer const& book);
    static Pointer take(std::string const& title); ///< from the shelf; null if it is not there
    static SharedBase* find(std::string const& title);
    static bool isShelved(SharedBase const* book);
    static std::vector<Pointer> shelf();
    static void arrange(std::vector<Pointer> const& books); ///< replaces the shelf's contents

private:
    std::string title_;
};

/// A book of maps.
class SharedDerived : public SharedBase {
public:
    SharedDerived(std::string title, int scale);

    std::string label() const override;
    int scale() const { return scale_; }

private:
    int scale_;
};

} // namespace orbisFactorySharedTests

template <>
struct orbis::factory::HostClass<orbisFactorySharedTests::SharedBase> {
    static constexpr char const* name = "orbis_factory.SharedBase";
};
template <>
struct orbis::factory::HostClass<orbisFactorySharedTests::SharedDerived> {
    static constexpr char const* name = "orbis_factory.SharedDerived";
};

namespace orbisFactorySharedTests {

class CosSharedBase final : public orbis::factory::ShareableHandleClassInfo<SharedBase> {
public:
    CosSharedBase();
    void initializeClass(orbis::COSClass* cls) override;
};

class CosSharedDerived final : public orbis::factory::ShareableHandleClassInfo<SharedDerived> {
public:
    CosSharedDerived();
    void initializeClass(orbis::COSClass* cls) override;
};

} // namespace orbisFactorySharedTests
