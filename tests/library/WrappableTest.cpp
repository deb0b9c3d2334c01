#include "HvmTest.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/full/BindingRegistry.hpp"

#include "orbis/objectArrays.hpp"

#include <memory>
#include <optional>

using namespace orbis;
using namespace orbis::factory;
using full::BindingRegistry;
using velmara::ArrayPtr;

namespace {

struct Named {
    virtual int label() const { return 0; } // before the destructor, so that no other vtable will do
    virtual ~Named() = default;
    int padding = 0;
};

/// `Wrappable` is not the first base: its address is another one.
struct Thing : Named, full::Wrappable {
    Thing() { ++alive; }
    Thing(Thing const& other) : Named(other), Wrappable(other) { ++alive; }
    Thing& operator=(Thing const&) = default;
    ~Thing() override { --alive; }
    int answer() const { return 42; }
    Thing* self() { return this; }
    inline static int alive = 0;
};

struct Unlike : full::Wrappable {};

} // namespace

template <>
struct orbis::factory::HostClass<Thing> {
    static constexpr char const* name = "tests.Thing";
};

namespace {

class WrappableTest : public HvmTest {
protected:
    ~WrappableTest() override
    {
        endHvm();
        EXPECT_EQ(Thing::alive, 0);
    }

    template <int N>
    static void publishThing()
    {
        publishClass<Thing, HandleClassInfo<Thing, N>>(
            [](auto& c) { c.constructor().method("answer", &Thing::answer).method("self", &Thing::self); });
    }

    static COSNameID name() { return "tests.Thing"; }
    static ArrayPtr announce(full::Wrappable* object) { return ArrayPtr(BindingRegistry::announce(object, name())); }
    static COSInterfacePtr hostOf(ArrayPtr const& array) { return omGetArrayElement(array.get(), 0); }
};

TEST_F(WrappableTest, TheNativeObjectMayGoFirst)
{
    publishThing<0>();
    std::optional<Thing> thing(std::in_place);
    ArrayPtr const array = announce(&*thing);
    COSInterfacePtr const host = hostOf(array);
    EXPECT_EQ(BindingRegistry::find(&*thing), static_cast<COSInterface*>(host));
    EXPECT_NE(static_cast<void*>(&*thing), static_cast<full::Wrappable*>(&*thing)) << "or this tests nothing";
    EXPECT_EQ(scalar<std::int32_t>(hvm().call(array.get(), "answer")), 42);
    EXPECT_TRUE(velmara::isSameObject(hvm().call(array.get(), "self").get(), array.get()));
    full::Wrappable* const address = &*thing;
    thing.reset();
    EXPECT_FALSE(velmara::isValid(array.get()));
    EXPECT_EQ(BindingRegistry::find(address), nullptr);

    thing.emplace(); // at the same place
    ArrayPtr const again = announce(&*thing);
    EXPECT_FALSE(velmara::isSameObject(again.get(), array.get()));
    EXPECT_TRUE(velmara::isValid(again.get()));
    EXPECT_FALSE(velmara::isValid(array.get()));
}

TEST_F(WrappableTest, DeletedWithItsHostObjectItGoesOnce)
{
    publishThing<1>();
    ArrayPtr script = hvm().construct("tests.Thing");
    ArrayPtr const native = announce(new Thing), released = announce(new Thing), deleted = announce(new Thing);
    EXPECT_EQ(Thing::alive, 4);
    script.reset();
    EXPECT_EQ(Thing::alive, 3);
    auto const thingOf = [](ArrayPtr const& array) {
        return static_cast<full::Wrappable*>(hostOf(array)->getNativeObject(name()));
    };
    std::unique_ptr<full::Wrappable> const owner(thingOf(released));
    BindingRegistry::release(owner.get());
    delete thingOf(deleted);
    for (ArrayPtr const* const array : {&released, &deleted, &native})
        hvm().deleteObjects(array->get());
    EXPECT_EQ(Thing::alive, 1) << "only what was still bound";
}

TEST_F(WrappableTest, CopiesAreUnbound)
{
    publishThing<0>();
    Thing thing;
    ArrayPtr const array = announce(&thing);
    {
        Thing copy(thing);
        EXPECT_EQ(BindingRegistry::find(&copy), nullptr);
        ArrayPtr const other = announce(&copy);
        copy = thing;
        EXPECT_FALSE(velmara::isSameObject(array.get(), other.get()));
    }
    EXPECT_TRUE(velmara::isValid(array.get()));
}

TEST_F(WrappableTest, ConstructorsStoreTheBinding)
{
    publishThing<0>();
    Thing thing;
    ArrayPtr const array(omCreateORBISMatrix(1, 1, name()));
    COSInterfacePtr const instance = COSClass::getClass(name())->newInstance();
    COSClass::getClass(name())->initializeInstance(instance);
    omSetArrayElement(array.get(), 0, instance);
    BindingRegistry::announceForConstructor(&thing, name(), array.get());
    EXPECT_EQ(BindingRegistry::find(&thing), static_cast<COSInterface*>(hostOf(array)));
    bool created = true;
    hvDestroyArray(basic::BindingRegistry::announce(static_cast<full::Wrappable*>(&thing), name(), created));
    EXPECT_FALSE(created);
    ArrayPtr const none(BindingRegistry::announce(nullptr, name()));
    EXPECT_EQ(none->get_number_of_elements(), 0u);
}

TEST_F(WrappableTest, AfterTheVirtualMachineNothingIsTold)
{
    publishThing<0>();
    auto thing = std::make_unique<Thing>();
    ArrayPtr const array = announce(thing.get());
    endHvm();
    EXPECT_EQ(Thing::alive, 1);
    thing.reset();
    velmara::Hvm another;
    velmara::Hvm::Scope const scope(another);
    Thing().self();
}

TEST_F(WrappableTest, AnObjectOfAnotherClassIsNull)
{
    publishThing<0>();
    Unlike unlike;
    ArrayPtr const array = announce(&unlike);
    using Pointers = detail::MarshalerOf<Thing*>;
    EXPECT_EQ(Pointers::fromHost<Thing>(array.get()), nullptr);
    Thing thing;
    EXPECT_EQ(Pointers::fromHost<Thing>(announce(&thing).get()), &thing);
    EXPECT_EQ(errorOf([&] { hvm().call(array.get(), "answer"); }), "orbis_factory:orbis_factory:null_self");
}

} // namespace
