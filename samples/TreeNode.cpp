#include "samples/TreeNode.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"

#include <algorithm>

namespace orbis::factory::samples {

TreeNodeBase::TreeNodeBase(std::string title) : title_(std::move(title)) {}

/// Either may be destroyed first, so each clears the other's pointer to it.
TreeNodeBase::~TreeNodeBase()
{
    for (auto const& child : children_)
        child->parent_ = nullptr;
    if (parent_)
        parent_->children_.remove_if([this](auto const& child) { return child == this; });
}

std::vector<TreeNodeBase*> TreeNodeBase::children() const
{
    std::vector<TreeNodeBase*> children;
    children.reserve(children_.size());
    for (auto const& child : children_)
        children.push_back(child.get());
    return children;
}

void TreeNodeBase::add(TreeNodeBase* child)
{
    if (!child)
        throw Exception("There is nothing to add.");
    if (child->parent_)
        throw Exception("\"" + child->title_ + "\" stands below \"" + child->parent_->title_ + "\": remove it there.");
    for (TreeNodeBase const* node = this; node; node = node->parent_)
        if (node == child)
            throw Exception("\"" + child->title_ + "\" cannot stand below itself.");
    if (level() + child->height() > maxLevels)
        throw Exception("An outline has at most " + std::to_string(maxLevels) + " levels.");
    children_.emplace_back(child);
    child->parent_ = this;
}

void TreeNodeBase::remove(TreeNodeBase* child)
{
    auto const found = std::ranges::find_if(children_, [=](auto const& handle) { return handle == child; });
    if (found == children_.end())
        throw Exception("This does not stand below \"" + title_ + "\".");
    child->parent_ = nullptr;
    children_.erase(found);
}

std::int64_t TreeNodeBase::pages() const
{
    std::int64_t sum = 0;
    for (auto const& child : children_)
        sum += child->pages();
    return sum;
}

int TreeNodeBase::level() const
{
    return parent_ ? parent_->level() + 1 : 1;
}

int TreeNodeBase::height() const
{
    int below = 0;
    for (auto const& child : children_)
        below = std::max(below, child->height());
    return below + 1;
}

TreeNodeDerived::TreeNodeDerived(std::string title, int ownPages) : TreeNodeBase(std::move(title))
{
    setOwnPages(ownPages);
}

void TreeNodeDerived::setOwnPages(int ownPages)
{
    if (ownPages < 0)
        throw Exception("A section has 0 or more pages.");
    ownPages_ = ownPages;
}

std::int64_t TreeNodeDerived::pages() const
{
    return ownPages_ + TreeNodeBase::pages();
}

CosTreeNodeBase::CosTreeNodeBase()
    : HandleClassInfo(HostClass<TreeNodeBase>::name, "A heading of an outline, with what stands below it")
{
}

void CosTreeNodeBase::initializeClass(COSClass* cls)
{
    publish(cls, describe<TreeNodeBase>()
                     .constructor<std::string>("title")
                     .method("add", &TreeNodeBase::add, "child")
                     .method("remove", &TreeNodeBase::remove, "child")
                     .method("pages", &TreeNodeBase::pages)
                     .property("title", &TreeNodeBase::title)
                     .property("parent", &TreeNodeBase::parent)
                     .property("children", &TreeNodeBase::children));
}

CosTreeNodeDerived::CosTreeNodeDerived()
    : HandleClassInfo(HostClass<TreeNodeDerived>::name, "A section of an outline, with pages of its own")
{
}

void CosTreeNodeDerived::initializeClass(COSClass* cls)
{
    publish(cls, describe<TreeNodeDerived>()
                     .inherits<TreeNodeBase>()
                     .constructor<std::string, int>("title, ownPages")
                     .property("ownPages", &TreeNodeDerived::ownPages, &TreeNodeDerived::setOwnPages));
}

} // namespace orbis::factory::samples
