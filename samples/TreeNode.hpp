#pragma once

#include "orbis/factory/ObjectHandle.hpp"
#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <list>
#include <string>
#include <vector>

namespace orbis::factory::samples {
class TreeNodeBase;
class TreeNodeDerived;
} // namespace orbis::factory::samples

// Both are bound as the base, so that a pointer to that reaches scripts as what it points to.
template <>
struct orbis::factory::HostClass<orbis::factory::samples::TreeNodeBase> {
    static constexpr char const* name = "orbis_factory.TreeNodeBase";
    using Root = samples::TreeNodeBase;
    using Policy = VelmaraManagedWithInheritancePolicy;
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::TreeNodeDerived> {
    static constexpr char const* name = "orbis_factory.TreeNodeDerived";
    using Root = samples::TreeNodeBase;
};

namespace orbis::factory::samples {

/// A heading of an outline. Host objects own the native ones; a heading holds the host objects of what stands below it,
/// so that a whole outline lives as long as its topmost heading.
class TreeNodeBase {
public:
    /// Levels of an outline: few enough to walk it by recursion.
    static constexpr int maxLevels = 32;

    explicit TreeNodeBase(std::string title);
    TreeNodeBase(TreeNodeBase const&) = delete;
    TreeNodeBase& operator=(TreeNodeBase const&) = delete;
    virtual ~TreeNodeBase();

    std::string const& title() const { return title_; }
    TreeNodeBase* parent() const { return parent_; }
    std::vector<TreeNodeBase*> children() const;

    /// Throws when it stands somewhere already, when it would stand below itself, and when it would stand too deep.
    void add(TreeNodeBase* child);
    void remove(TreeNodeBase* child);

    /// Of it and all that stands below it.
    virtual std::int64_t pages() const;

private:
    int level() const;
    int height() const;

    std::string title_;
    TreeNodeBase* parent_ = nullptr;
    std::list<ObjectHandle<TreeNodeBase>> children_; // a list: handles stay where they are
};

/// A section, which has pages of its own.
class TreeNodeDerived : public TreeNodeBase {
public:
    TreeNodeDerived(std::string title, int ownPages);

    int ownPages() const { return ownPages_; }
    void setOwnPages(int ownPages);
    std::int64_t pages() const override;

private:
    int ownPages_ = 0;
};

class CosTreeNodeBase final : public HandleClassInfo<TreeNodeBase, 1> {
public:
    CosTreeNodeBase();
    void initializeClass(COSClass* cls) override;
};

class CosTreeNodeDerived final : public HandleClassInfo<TreeNodeBase, 1> {
public:
    CosTreeNodeDerived();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
