#include "HvmTest.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"

#include <functional>
#include <new>
#include <stdexcept>
#include <utility>

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

// Node, with Leaf and Branch below it; Bud, below Leaf, is not published. Leaf has its Node at an offset.
struct Node {
    Node() { ++alive; }
    Node(Node const&) = delete;
    Node& operator=(Node const&) = delete;
    virtual ~Node() { --alive; }
    int weight() const { return weight_; }
    void setWeight(int weight) { weight_ = weight; }
    virtual int kind() const { return 0; }
    Node* self() { return this; }
    Node& heavier(Node& other) & noexcept { return weight_ < other.weight_ ? other : *this; }
    Node const& heavier(Node const& other) const& noexcept;

    static Node* next();
    static bool isNull(Node const* node) { return !node; }
    static inline std::function<Node*()> make;
    inline static int alive = 0;

private:
    int weight_ = 1;
};

Node* Node::next()
{
    return make();
}

struct Tagged {
    virtual ~Tagged() = default;
    int tag = 5;
};

struct Leaf : Tagged, Node {
    int kind() const override { return 1; }
    int leafTag() const { return tag; }
};

struct Bud : Leaf {};

struct Branch : Node {
    int kind() const override { return 2; }
    Node const& fruit() const { return fruit_; }

private:
    Leaf fruit_;
};

// Below a class that is published nowhere.
struct Stray : Node {};

// Published in a package of its own; what is below it, is not.
struct Twig : Node {};
struct LongTwig : Twig {};

// A hierarchy of wrappable classes needs no root of its own; it is a diamond.
struct Part : full::Wrappable {
    int id() const { return number; }
    int number = 7;
    Part* self() { return this; }
};
struct Wheel : virtual Part {};
struct Motor : virtual Part {};
struct Wheelmotor : Wheel, Motor {};
struct Sidecar : Wheelmotor {};

} // namespace

PUBLISHED_IN_TESTS(Node, using Root = Node;)
PUBLISHED_IN_TESTS(Leaf, using Root = Node;)
PUBLISHED_IN_TESTS(Branch, using Root = Node;)
PUBLISHED_IN_TESTS(Part)
PUBLISHED_IN("twigs", Twig, using Root = Node;)
PUBLISHED_IN_TESTS(Wheel)
PUBLISHED_IN_TESTS(Motor)
PUBLISHED_IN_TESTS(Wheelmotor)

namespace {

void describeNode(ClassDescriber<Node>& node)
{
    node.constructor()
        .method("kind", &Node::kind)
        .method("self", &Node::self)
        .staticMethod("next", &Node::next)
        .method("heavier", overload<Node&>(&Node::heavier), "other")
        .staticMethod("isNull", &Node::isNull)
        .property("weight", &Node::weight, &Node::setWeight);
}

void describeBranch(ClassDescriber<Branch>& branch)
{
    branch.constructor().inherits<Node>().method("fruit", &Branch::fruit);
}

using NodeInfo = HandleClassInfo<Node, 1>;
using PartInfo = HandleClassInfo<Part, 1>;

class HierarchyTest : public HvmTest {
protected:
    HierarchyTest()
    {
        // The subclasses are described before their superclass is, and in no order.
        registerOrbisPackage("tests", [](COSPackage* package) {
            package->addClass(new Described<Branch, NodeInfo>(&describeBranch));
            package->addClass(new Described<Leaf>(
                [](auto& c) { c.constructor().template inherits<Node>().method("leafTag", &Leaf::leafTag); }));
            package->addClass(new Described<Node>(&describeNode));
            package->addClass(new Described<Wheelmotor, PartInfo>([](auto& c) {
                c.constructor()
                    .template inherits<Wheel, Motor>()
                    .method("own", &Part::id)
                    .property("number", &Part::number);
            }));
            package->addClass(
                new Described<Wheel, PartInfo>([](auto& c) { c.constructor().template inherits<Part>(); }));
            package->addClass(
                new Described<Motor, PartInfo>([](auto& c) { c.constructor().template inherits<Part>(); }));
            package->addClass(new Described<Part>(
                [](auto& c) { c.constructor().method("id", &Part::id).method("self", &Part::self); }));
        });
    }
    ~HierarchyTest() override
    {
        Node::make = nullptr;
        EXPECT_EQ(Node::alive, 0);
    }

    /// As it crosses as a pointer to `T`, before the host has looked for anything.
    template <class T>
    static ArrayPtr announce(T* object)
    {
        detail::NewArray array;
        detail::MarshalerOf<T*>::template toHost<T>(object, array.place());
        return ArrayPtr(array.release());
    }

    ArrayPtr next(Node* node)
    {
        Node::make = [node] { return node; };
        return hvm().callStatic("tests.Node", "next");
    }
};

TEST_F(HierarchyTest, BaseMembersWorkOnDerivedObjects)
{
    for (auto const& [name, kind] : {std::pair("tests.Leaf", 1), std::pair("tests.Branch", 2)}) {
        ArrayPtr const object = hvm().construct(name);
        EXPECT_EQ(scalar<std::int32_t>(hvm().call(object.get(), "kind")), kind);
        hvm().set(object.get(), "weight", number(8).get());
        EXPECT_EQ(scalar<std::int32_t>(hvm().get(object.get(), "weight")), 8);
        EXPECT_TRUE(velmara::isSameObject(hvm().call(object.get(), "self").get(), object.get()));
        EXPECT_EQ(basic::registry().size(), 1u) << "one binding, by the root's address";
    }
    EXPECT_EQ(Node::alive, 0) << "deleted once, with the derived object";
    ArrayPtr const leaf = hvm().construct("tests.Leaf");
    EXPECT_EQ(scalar<std::int32_t>(hvm().call(leaf.get(), "leafTag")), 5);
    EXPECT_EQ(hvm().describeClass("tests.Leaf").superclasses, std::vector<std::string>{"tests.Node"});
}

TEST_F(HierarchyTest, ReferencesAreObjectsOfScriptsAndParts)
{
    ArrayPtr branch = hvm().construct("tests.Branch");
    ArrayPtr const leaf = hvm().construct("tests.Leaf");
    hvm().set(leaf.get(), "weight", number(8).get());
    EXPECT_TRUE(velmara::isSameObject(hvm().call(branch.get(), "heavier", inputs(leaf)).get(), leaf.get()));
    ArrayPtr const none(omCreateORBISMatrix(0, 0, "tests.Node"));
    expectMessage([&] { hvm().call(branch.get(), "heavier", inputs(none)); }, {"null_input", "Input \"other\""});
    ArrayPtr const fruit = hvm().call(branch.get(), "fruit");
    EXPECT_EQ(velmara::className(fruit.get()), "tests.Leaf");
    branch.reset();
    EXPECT_EQ(scalar<std::int32_t>(hvm().get(fruit.get(), "weight")), 1) << "keeps the branch alive";
}

TEST_F(HierarchyTest, ABasePointerYieldsTheMostDerivedPublishedClass)
{
    using Case = std::pair<Node*, char const*>;
    // Nothing but Node is described when the first one crosses.
    for (auto const& [node, name] :
         {Case{new Leaf, "tests.Leaf"}, Case{new Branch, "tests.Branch"}, Case{new Bud, "tests.Leaf"},
          Case{new Stray, "tests.Node"}, Case{new Node, "tests.Node"}}) {
        ArrayPtr const object = next(node);
        EXPECT_EQ(velmara::className(object.get()), name);
        EXPECT_EQ(scalar<std::int32_t>(hvm().call(object.get(), "kind")), node->kind());
        ArrayPtr const again = next(node);
        EXPECT_TRUE(velmara::isSameObject(again.get(), object.get()));
        EXPECT_EQ(velmara::className(again.get()), name);
    }
    ArrayPtr const none = next(nullptr);
    EXPECT_EQ(none->get_number_of_elements(), 0u);
    EXPECT_EQ(velmara::className(none.get()), "tests.Node");
}

TEST_F(HierarchyTest, ASuperclassIsNoSubclass)
{
    ArrayPtr const node = hvm().construct("tests.Node");
    EXPECT_EQ(errorOf([&] { hvm().call(node.get(), "leafTag"); }), "VELMARA:member:unknown");
    using Leaves = detail::MarshalerOf<Leaf*>;
    EXPECT_EQ(Leaves::fromHost<Leaf>(node.get()), nullptr);
    ArrayPtr const wheel = hvm().construct("tests.Wheel");
    EXPECT_EQ(errorOf([&] { hvm().callStatic("tests.Node", "isNull", inputs(wheel)); }), "VELMARA:dispatch:noMatch");
}

TEST_F(HierarchyTest, VirtualBasesAreBoundAsWrappable)
{
    ArrayPtr const object = hvm().construct("tests.Wheelmotor");
    hvm().set(object.get(), "number", number(8).get());
    for (char const* const id : {"id", "own"})
        EXPECT_EQ(scalar<std::int32_t>(hvm().call(object.get(), id)), 8);
    EXPECT_TRUE(velmara::isSameObject(hvm().call(object.get(), "self").get(), object.get()));
    EXPECT_EQ(velmara::className(announce<Part>(new Sidecar).get()), "tests.Wheelmotor") << "the nearest of three";
}

TEST_F(HierarchyTest, WhatIsUnpublishedIsNoLongerFound)
{
    registerOrbisPackage("twigs", [](COSPackage* package) {
        package->addClass(new Described<Twig>([](auto& c) { c.constructor().template inherits<Node>(); }));
    });
    EXPECT_EQ(velmara::className(next(new LongTwig).get()), "twigs.Twig");
    COSPackage::removePackage("twigs");
    EXPECT_EQ(velmara::className(next(new LongTwig).get()), "tests.Node");
    EXPECT_EQ(velmara::className(next(new Leaf).get()), "tests.Leaf");
    COSPackage::removePackage("tests");
    publishClass<Node>(&describeNode);
    EXPECT_EQ(velmara::className(next(new Bud).get()), "tests.Node");
    COSPackage::getPackage("tests")->addClass(
        new Described<Leaf>([](auto& c) { c.constructor().template inherits<Node>(); }));
    static_cast<void>(hvm().describeClass("tests.Leaf"));
    EXPECT_EQ(velmara::className(next(new Bud).get()), "tests.Leaf");
}

TEST_F(HierarchyTest, WhatCannotBeDescribedIsUnpublished)
{
    COSPackage::removePackage("tests");
    publishClass<Branch, NodeInfo>(&describeBranch);
    publishClass<Part>([](auto& c) { c.constructor().method("id", &Part::id, MethodAttributes::Sealed()); });
    publishClass<Wheel, PartInfo>([](auto& c) { c.template inherits<Part>().method("id", &Part::id); });
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(errorOf([&] { hvm().construct("tests.Branch"); }), "VELMARA:class:initialization");
    EXPECT_EQ(velmara::className(announce<Part>(new Wheel).get()), "tests.Part") << "tried in vain";
    publishClass<Node>(&describeNode);
    EXPECT_EQ(velmara::className(next(new Branch).get()), "tests.Branch");

    static bool isMemoryLeft;
    isMemoryLeft = false;
    publishClass<Leaf>([](auto& c) {
        if (!std::exchange(isMemoryLeft, true))
            throw std::bad_alloc();
        c.template inherits<Node>();
    });
    auto* const leaf = new Leaf;
    ArrayPtr object;
    EXPECT_THROW(object = announce<Node>(leaf), std::bad_alloc) << "which says nothing about the class";
    EXPECT_EQ(velmara::className(announce<Node>(leaf).get()), "tests.Leaf");
}

TEST_F(HierarchyTest, InitializersThatWaitRunWhereTheirClassesMayBeNeeded)
{
    COSPackage::removePackage("tests");
    publishClass<Branch, NodeInfo>(&describeBranch); // waits
    publishClass<Node>(&describeNode);               // runs at once
    registerOrbisPackage("broken", [](COSPackage*) { throw std::runtime_error("no"); });
    EXPECT_EQ(velmara::className(announce<Node>(new Branch).get()), "tests.Branch");
}

} // namespace
