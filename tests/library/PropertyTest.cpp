#include "HvmTest.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/impl/PropertyImpl.hpp"

#include "orbis/COSDataType.hpp"
#include "orbis/objectArrays.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;
using P = PropertyAttributes;

namespace {

struct Node {
    virtual ~Node() = default;
    int getWeight() const noexcept { return weight; }
    void setWeight(int value) { weight = value; }
    Node* getNext() const { return next; }

    int weight = 1;
    Node* next = nullptr;
};

} // namespace

template <>
struct orbis::factory::HostClass<Node> {
    static constexpr char const* name = "tests.Node";
};

namespace {

using PropertyTest = HvmTest;

/// A getter of a type of its own, or none.
struct Typed final : impl::Getter {
    explicit Typed(char const* type) : type_(type) {}
    COSValue getValue(COSInterface*) const override { return {}; }
    char const* dataTypeName() const override { return type_; }
    void releaseValue(COSInterface*, COSValue) const override {}
    Enumeration<COSInterface*> getInterfaces(COSInterface*) const override { return {}; }
    bool canContainInterfaces() const override { return false; }

    char const* type_;
};

struct Told final : impl::PropertyImpl {
    using PropertyImpl::PropertyImpl;
    char const* getDescription() const override { return "told"; }
};

/// The descriptors themselves, as the host asks them.
TEST_F(PropertyTest, MissingSidesHaveNoAccess)
{
    publishClass<Node>([](auto& c) { c.constructor().property("next", &Node::next); });
    ArrayPtr const array = hvm().construct("tests.Node");
    ArrayPtr const other = hvm().construct("tests.Node");
    COSInterface* const object = omGetArrayElement(array.get(), 0);
    impl::ClassGetter<int, Node, int (Node::*)() const, int> getter(&Node::getWeight);
    impl::ClassGetter<Node*, Node, Node* (Node::*)() const, Node*> objectGetter(&Node::getNext);
    impl::ClassSetter<int, Node, void (Node::*)(int)> setter(&Node::setWeight);
    impl::PropertyImpl const readOnly("r", &getter, P::Destructible());
    impl::PropertyImpl const writeOnly("w", &setter, {});
    impl::PropertyImpl const both("b", &getter, &setter, P::PrivateSetter());
    impl::PropertyImpl const held("h", &objectGetter, {});

    struct Case {
        impl::PropertyImpl const& property;
        int get, set;
        bool isTransient, canContain;
    };
    for (auto const& [property, get, set, isTransient, canContain] :
         {Case{readOnly, 0, 5, true, false}, Case{writeOnly, 5, 0, true, true}, Case{both, 0, 2, false, false},
          Case{held, 0, 5, true, true}}) {
        EXPECT_EQ(static_cast<int>(property.getMemberGetAccess()), get);
        EXPECT_EQ(static_cast<int>(property.getMemberSetAccess()), set);
        EXPECT_EQ(property.isTransient(), isTransient);
        EXPECT_EQ(property.canContainInterfaces(), canContain);
        EXPECT_FALSE(property.isDestructible()) << "the host's default, whatever the attributes say";
        EXPECT_FALSE(property.getVXArrays(nullptr, object).hasMoreElements());
    }
    Typed typed("double scalar"), untyped(nullptr);
    Told const told("t", &typed, &setter, {});
    EXPECT_STREQ(told.getDetailedDescription(), "told");
    impl::PropertyImpl const unnamed("u", &untyped, &setter, {});
    EXPECT_STREQ(told.getDataType()->scalarTypeName(), "double scalar");
    for (impl::PropertyImpl const* const property : {&unnamed, &writeOnly})
        EXPECT_STREQ(property->getDataType()->scalarTypeName(), "int32 scalar");
    EXPECT_FALSE(held.getInterfaces(nullptr, object).hasMoreElements());
    hvm().set(array.get(), "next", other.get());
    auto interfaces = held.getInterfaces(nullptr, object);
    EXPECT_EQ(interfaces.nextElement(), static_cast<COSInterface*>(omGetArrayElement(other.get(), 0)));
    EXPECT_FALSE(interfaces.hasMoreElements());
    EXPECT_FALSE(both.getInterfaces(nullptr, object).hasMoreElements());
}

} // namespace
