#include "HvmTest.hpp"

#include "orbis/factory/HandleClassInfo.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/impl/PropertyImpl.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include "libkwfl/IMsgIDException.hpp"
#include "orbis/COSDataType.hpp"
#include "orbis/objectArrays.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;
using P = PropertyAttributes;

namespace {

class Node {
public:
    virtual ~Node() = default;
    int weight() const noexcept { return weight_; }
    void setWeight(int weight)
    {
        if (weight < 0)
            throw std::invalid_argument("a weight is not negative");
        weight_ = weight;
    }
    Node* next() const { return next_; }
    void setNext(Node* next) { next_ = next; }

private:
    int weight_ = 1;
    Node* next_ = nullptr;
};

} // namespace

template <>
struct orbis::factory::HostClass<Node> {
    static constexpr char const* name = "tests.Node";
};

namespace {

class NodeInfo final : public HandleClassInfo<Node, 1> {
public:
    NodeInfo() : HandleClassInfo("tests.Node", "") {}
    void initializeClass(COSClass* cls) override
    {
        publish(cls, describe<Node>()
                         .constructor()
                         .property("weight", &Node::weight, &Node::setWeight)
                         .property("next", &Node::next, &Node::setNext)
                         .property("fixed", &Node::weight)
                         .property("guarded", &Node::weight, &Node::setWeight, P::PrivateSetter() + P::Transient())
                         .property(
                             "doubled", [](Node const* node) { return node->weight() * 2; },
                             [](Node* node, int value) { node->setWeight(value / 2); })
                         .writeOnlyProperty("written", &Node::setWeight, P::Destructible())
                         .staticProperty("kind", [] { return 3.5; }));
    }
};

class PropertyTest : public HvmTest {
protected:
    PropertyTest()
    {
        registerOrbisPackage("tests", [](COSPackage* package) { package->addClass(new NodeInfo); });
    }

    std::int32_t read(ArrayPtr const& object, char const* name)
    {
        return scalar<std::int32_t>(hvm().get(object.get(), name));
    }

    void write(ArrayPtr const& object, char const* name, double value)
    {
        hvm().set(object.get(), name, number(value).get());
    }
};

TEST_F(PropertyTest, ScriptsReadAndWriteTheNativeObject)
{
    ArrayPtr const node = hvm().construct("tests.Node");
    write(node, "weight", 5);
    EXPECT_EQ(read(node, "weight"), 5);
    EXPECT_EQ(read(node, "fixed"), 5);
    EXPECT_EQ(read(node, "doubled"), 10);
    write(node, "doubled", 8);
    EXPECT_EQ(read(node, "weight"), 4);
    write(node, "written", 6);
    EXPECT_EQ(read(node, "weight"), 6);
    EXPECT_EQ(scalar<double>(hvm().getStatic("tests.Node", "kind")), 3.5);
    EXPECT_NE(errorOf([&] { write(node, "weight", -1); }), "");
    EXPECT_NE(errorOf([&] { write(node, "weight", 1.5); }), "");
    for (char const* const refused : {"fixed", "guarded", "kind"})
        EXPECT_NE(errorOf([&] { write(node, refused, 1); }), "") << refused;
    EXPECT_NE(errorOf([&] { read(node, "written"); }), "");
    EXPECT_EQ(read(node, "weight"), 6);
}

TEST_F(PropertyTest, ObjectsInPropertiesKeepTheirIdentity)
{
    ArrayPtr const first = hvm().construct("tests.Node");
    ArrayPtr const second = hvm().construct("tests.Node");
    EXPECT_EQ(hvm().get(first.get(), "next")->get_number_of_elements(), 0u);
    hvm().set(first.get(), "next", second.get());
    EXPECT_TRUE(velmara::isSameObject(hvm().get(first.get(), "next").get(), second.get()));
}

/// The descriptors themselves, as the host asks them.
TEST_F(PropertyTest, MissingSidesHaveNoAccess)
{
    ArrayPtr const array = hvm().construct("tests.Node");
    ArrayPtr const other = hvm().construct("tests.Node");
    COSInterface* const object = omGetArrayElement(array.get(), 0);
    impl::ClassGetter<int, Node, int (Node::*)() const, int> getter(&Node::weight);
    impl::ClassGetter<Node*, Node, Node* (Node::*)() const, Node*> objectGetter(&Node::next);
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
    EXPECT_STREQ(writeOnly.getDataType()->scalarTypeName(), "int32 scalar");
    auto const id = [](auto action) -> std::string {
        try {
            action();
        } catch (foundation::core::except::IMsgIDException const& error) {
            return error.getErrorID();
        }
        return "";
    };
    for (std::string const& error :
         {id([&] { writeOnly.getValue(object); }), id([&] { writeOnly.releaseValue(object, {}); }),
          id([&] { readOnly.setValue(object, COSValue(1)); })})
        EXPECT_EQ(error, "orbis_factory:orbis_factory:null_fcn_ptr");

    EXPECT_FALSE(held.getInterfaces(nullptr, object).hasMoreElements());
    hvm().set(array.get(), "next", other.get());
    auto interfaces = held.getInterfaces(nullptr, object);
    EXPECT_EQ(interfaces.nextElement(), static_cast<COSInterface*>(omGetArrayElement(other.get(), 0)));
    EXPECT_FALSE(interfaces.hasMoreElements());
    EXPECT_FALSE(both.getInterfaces(nullptr, object).hasMoreElements());
}

} // namespace
