#include "HvmTest.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/detail/bindings/hostShares.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

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

PUBLISHED_IN_TESTS(Thing)

namespace {

class WrappableTest : public HvmTest {
protected:
    ~WrappableTest() override { EXPECT_EQ(Thing::alive, 0); }

    static void publishThing()
    {
        publishClass<Thing, HandleClassInfo<Thing, 0>>(
            [](auto& c) { c.constructor().method("answer", &Thing::answer).method("self", &Thing::self); });
    }

    static COSNameID name() { return "tests.Thing"; }
    static ArrayPtr announce(full::Wrappable* object) { return ArrayPtr(BindingRegistry::announce(object, name())); }
};

TEST_F(WrappableTest, CopiesAreUnbound)
{
    publishThing();
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
    publishThing();
    Thing thing;
    ArrayPtr const array(omCreateORBISMatrix(1, 1, name()));
    COSInterfacePtr const instance = COSClass::getClass(name())->newInstance();
    COSClass::getClass(name())->initializeInstance(instance);
    omSetArrayElement(array.get(), 0, instance);
    BindingRegistry::announceForConstructor(&thing, name(), array.get());
    EXPECT_EQ(BindingRegistry::find(&thing), objectIn(array));
    bool created = true;
    hvDestroyArray(basic::BindingRegistry::announce(static_cast<full::Wrappable*>(&thing), name(), created));
    EXPECT_FALSE(created);
    ArrayPtr const none(BindingRegistry::announce(nullptr, name()));
    EXPECT_EQ(none->get_number_of_elements(), 0u);
    EXPECT_TRUE(BindingRegistry::release(&thing));
    EXPECT_FALSE(BindingRegistry::retract(&thing));
}

TEST_F(WrappableTest, WhatIsSharedIsNotDeletedToo)
{
    publishClass<Thing>([](auto& c) { c.constructor(); });
    auto const owner = std::make_shared<Thing>();
    ArrayPtr array = announce(owner.get());
    detail::shareWithHost(array.get(), std::shared_ptr<void>(owner));
    array.reset();
    EXPECT_TRUE(owner.use_count() == 1 && Thing::alive == 1);
}

TEST_F(WrappableTest, AnObjectOfAnotherClassIsNull)
{
    publishThing();
    Unlike unlike;
    ArrayPtr const array = announce(&unlike);
    using Pointers = detail::MarshalerOf<Thing*>;
    EXPECT_EQ(Pointers::fromHost<Thing>(array.get()), nullptr);
    Thing thing;
    EXPECT_EQ(Pointers::fromHost<Thing>(announce(&thing).get()), &thing);
    EXPECT_EQ(errorOf([&] { hvm().call(array.get(), "answer"); }), "orbis_factory:orbis_factory:null_self");
}

} // namespace
