#include "library.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/notNull.hpp"
#include "orbis/factory/retract.hpp"
#include "orbis/factory/types/function.hpp"
#include "orbis/factory/types/pair.hpp"

using namespace library;

/// The library asserts what it requires, or does without; a script's mistake must be an error.
void require(bool condition, char const* sentence)
{
    if (!condition)
        throw std::invalid_argument(sentence);
}

Node* child(Node const* node, std::size_t number)
{
    require(number >= 1 && number <= node->count(), "there is no such child");
    return node->child(number - 1);
}

/// Before the library destroys nodes.
void retractAll(Node const* node)
{
    for (std::size_t i = 0; i < node->count(); ++i)
        retractAll(node->child(i));
    orbis::factory::retract(node);
}

/// A tree must not change while it is visited: scripts might.
struct Visit {
    Visit() { ++running; }
    Visit(Visit const&) = delete;
    ~Visit() { --running; }
    static void requireNone() { require(running == 0, "a tree must not change while one is visited"); }

    static inline thread_local int running = 0;
};

Node* grow(Tree* tree, Node* parent, std::string const& name)
{
    Visit::requireNone();
    return tree->grow(parent, name);
}

void prune(Tree* tree, Node* node)
{
    Visit::requireNone();
    require(node->parent(), "the root stays");
    retractAll(node);
    tree->prune(node);
}

void visit(Tree const* tree, std::function<bool(Node const&)> function)
{
    struct : Visitor, Visit {
        bool enter(Node const& node) override { return function(node); }
        std::function<bool(Node const&)> function;
    } visitor;
    visitor.function = std::move(function);
    tree->visit(visitor);
}

std::pair<std::size_t, std::size_t> measure(Tree const* tree)
{
    std::size_t nodes = 0, depth = 0;
    tree->measure(nodes, depth);
    return {nodes, depth};
}

void publishModule(orbis::factory::Module& tree)
{
    using orbis::factory::notNull;
    using orbis::factory::owned;
    tree.error<std::invalid_argument>("tree:invalid");
    tree.publish<Node>("Node", "A node of a tree")
        .property("name", &Node::name)
        .property("parent", [](Node* node) { return node->parent(); })
        .method("length", &Node::count)
        .method("item", &child, "this, number (from 1)");
    tree.publish<Tree>("Tree", "Owns its nodes")
        .staticMethod("create", owned(&Tree::create), "root")
        .property("root", &Tree::root)
        .method("grow", notNull(&grow), "this, parent, name", "Adds a node")
        .method("prune", notNull(&prune), "this, node", "Destroys a node, with all beneath it")
        .method("visit", &visit, "this, function", "Calls it for each node, until it gives false")
        .method("measure", &measure, "this", "The number of nodes, and the depth");
}
