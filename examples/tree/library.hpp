#pragma once

#include <algorithm>
#include <cassert>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// A library as others write them, which does not know that it is published.
namespace library {

class Node;

class Visitor {
public:
    virtual ~Visitor() = default;
    virtual bool enter(Node const& node) = 0;
};

/// Made and destroyed by its tree.
class Node {
public:
    Node(Node const&) = delete;

    char const* name() const { return name_.c_str(); }
    Node* parent() { return parent_; }
    Node const* parent() const { return parent_; }
    std::size_t count() const { return children_.size(); }
    Node* child(std::size_t index) const
    {
        assert(index < count());
        return children_[index];
    }

private:
    friend class Tree;

    explicit Node(std::string name) : name_(std::move(name)) {}
    ~Node()
    {
        for (Node* child : children_)
            delete child;
    }

    std::string name_;
    Node* parent_ = nullptr;
    std::vector<Node*> children_;
};

class Tree {
public:
    /// The caller deletes it.
    static Tree* create(char const* root)
    {
        if (*root == '\0')
            throw std::invalid_argument("a node needs a name");
        return new Tree(root);
    }

    Tree(Tree const&) = delete;
    ~Tree() { delete root_; }

    Node* root() { return root_; }

    /// Adds a node with this name to `parent`, at its end.
    Node* grow(Node* parent, std::string const& name)
    {
        auto* const node = new Node(name);
        node->parent_ = parent;
        parent->children_.push_back(node);
        return node;
    }

    /// Destroys the node, which is not the root, with all beneath it.
    void prune(Node* node)
    {
        std::erase(node->parent_->children_, node);
        delete node;
    }

    /// The tree must not change meanwhile.
    void visit(Visitor& visitor) const { visit(*root_, visitor); }

    void measure(std::size_t& nodes, std::size_t& depth) const
    {
        nodes = depth = 0;
        measure(*root_, 1, nodes, depth);
    }

private:
    explicit Tree(char const* root) : root_(new Node(root)) {}

    static void visit(Node const& node, Visitor& visitor)
    {
        if (visitor.enter(node))
            for (Node const* child : node.children_)
                visit(*child, visitor);
    }

    static void measure(Node const& node, std::size_t level, std::size_t& nodes, std::size_t& depth)
    {
        ++nodes;
        depth = std::max(depth, level);
        for (Node const* child : node.children_)
            measure(*child, level + 1, nodes, depth);
    }

    Node* root_;
};

} // namespace library
