#pragma once

#include "orbis/factory/classes/ShareableHandleClassInfo.hpp"

#include <string>
#include <vector>

namespace orbisFactorySharedTests {

/// A book of a library. It is owned through `boost::shared_ptr`: by the shelf, which is native code's, and by the
/// scripts that have borrowed it; it lasts as long as anybody has it.
class SharedBase : public orbis::factory::full::Shareable {
public:
    using Pointer = boost::shared_ptr<SharedBase>;

    explicit SharedBase(std::string title);

    std::string const& title() const { return title_; }
    virtual std::string label() const;

    /// How many have it: the shelf once for each place, a host object once, a reservation once.
    int holders() const;

    /// Keeps the book for this virtual machine, even when nobody else has it any more.
    void reserve();
    void cancelReservation();

    // The shelf of this virtual machine: books go in and come out as shared pointers and as raw ones.
    static void shelve(Pointer const& book);
    static Pointer take(std::string const& title); ///< from the shelf; null when it is not there
    static SharedBase* find(std::string const& title);
    static bool isShelved(SharedBase const* book);
    static std::vector<Pointer> shelf();
    static void arrange(std::vector<Pointer> const& books); ///< as the shelf's new content

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
