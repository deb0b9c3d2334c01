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

// Both are bound as the base, so a pointer to the base reaches scripts as an object of its dynamic class.
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

/// A heading of an outline. Native headings are owned by their host objects; each holds the host objects of its
/// subheadings, so the whole outline lives as long as its topmost heading.
class TreeNodeBase {
public:
    /// The maximum depth of an outline: few enough levels for recursion.
    static constexpr int maxLevels = 32;

    explicit TreeNodeBase(std::string title);
    TreeNodeBase(TreeNodeBase const&) = delete;
    TreeNodeBase& operator=(TreeNodeBase const&) = delete;
    virtual ~TreeNodeBase();

    std::string const& title() const { return title_; }
    TreeNodeBase* parent() const { return parent_; }
    std::vector<TreeNodeBase*> children() const;

    /// Throws if the child has a parent, is this heading or above it, or would exceed `maxLevels`.
    void add(TreeNodeBase* child);
    void remove(TreeNodeBase* child);

    /// The pages of this heading and all below it.
    virtual std::int64_t pages() const;

private:
    int level() const;
    int height() const;

    std::string title_;
    TreeNodeBase* parent_ = nullptr;
    std::list<ObjectHandle<TreeNodeBase>> children_; // a list, because handles are identified by address
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
