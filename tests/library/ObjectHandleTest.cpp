#include "HvmTest.hpp"
#include "library/Tally.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/ObjectHandle.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <vector>

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;
using Handle = ObjectHandle<Tally>;

namespace {

struct Linked;

/// Where its base is, only a living object tells.
struct Floating : virtual full::Wrappable {};

struct Ringed;

} // namespace

PUBLISHED_IN_TESTS(Ringed)
PUBLISHED_IN_TESTS(Floating)
PUBLISHED_IN_TESTS(Linked)

namespace {

/// Refers to others of its kind; deleted with its host object.
struct Linked {
    Linked() { ++alive; }
    explicit Linked(int) : Linked() { setNext(this); }
    Linked(Linked const&) = delete;
    Linked& operator=(Linked const&) = delete;
    virtual ~Linked() { --alive; }
    void setNext(Linked* object) { link.reset(object); }
    Linked* next() const { return link.get(); }
    ObjectHandle<Linked> link;
    inline static int alive = 0;
};

/// Belongs to its host object, and may be deleted by native code, too.
struct Ringed : full::Wrappable {
    Ringed() { ++alive; }
    Ringed(Ringed const&) = delete;
    Ringed& operator=(Ringed const&) = delete;
    ~Ringed() override { --alive; }
    std::vector<ObjectHandle<Ringed>> others;
    inline static int alive = 0;
};

class ObjectHandleTest : public HvmTest {
protected:
    ObjectHandleTest() { TallyInfo::publishIn("tests"); }
    ~ObjectHandleTest() override { EXPECT_EQ(Tally::alive + Linked::alive + Ringed::alive, 0); }

    static int references(Tally* tally)
    {
        COSInterface const* const host = basic::BindingRegistry::find(tally);
        return host ? host->getExternalReferenceCount() : 0;
    }
};

TEST_F(ObjectHandleTest, AHandleHoldsOneReference)
{
    auto* const first = new Tally;
    auto* const second = new Tally;
    Handle const empty;
    EXPECT_FALSE(empty);
    {
        Handle handle(first);
        EXPECT_EQ(references(first), 1) << "the host object was created for it";
        Handle copy(handle);
        EXPECT_EQ(references(first), 2);
        copy.reset(second);
        EXPECT_EQ(references(first), 1);
        handle = handle;
        EXPECT_EQ(references(first), 1);
        EXPECT_EQ(handle.get(), first);
        handle = copy;
        EXPECT_EQ(Tally::alive, 1) << "nothing else held the first one";
        EXPECT_EQ(references(second), 2);
        copy.reset();
        EXPECT_EQ(handle->value(), 0);
    }
    EXPECT_EQ(Tally::alive, 0);
    EXPECT_THROW(ObjectHandle<Linked>(reinterpret_cast<Linked*>(this)), std::exception) << "not published";
}

TEST_F(ObjectHandleTest, ChainsAndRingsOfObjectsAreDestroyed)
{
    COSPackage::removePackage("tests");
    publishClass<Linked>([](auto& c) {
        c.constructor().template constructor<int>("any").property("next", &Linked::next, &Linked::setNext);
    });
    auto* head = new Linked;
    for (int i = 0; i < 100000; ++i) {
        auto* const longer = new Linked;
        longer->setNext(head);
        head = longer;
    }
    ObjectHandle<Linked> chain(head);
    chain.reset(head->next()); // referred to by the destroyed one only
    EXPECT_EQ(Linked::alive, 100000);
    chain.reset();
    EXPECT_EQ(Linked::alive, 0);

    ArrayPtr first = hvm().construct("tests.Linked"), second = hvm().construct("tests.Linked");
    hvm().set(first.get(), "next", second.get());
    second.reset();
    EXPECT_EQ(Linked::alive, 2);
    second = hvm().get(first.get(), "next");
    hvm().deleteObjects(second.get());
    EXPECT_EQ(hvm().get(first.get(), "next")->get_number_of_elements(), 0u);
    second = hvm().construct("tests.Linked");
    hvm().set(first.get(), "next", second.get());
    hvm().set(second.get(), "next", first.get());
    first.reset();
    second.reset();
    ArrayPtr const handedOut = hvm().construct("tests.Linked", inputs(number(1)));
    COSInterfacePtr const host = objectIn(handedOut);
    EXPECT_EQ(basic::BindingRegistry::find(host->getNativeObject(COSNameID("tests.Linked"))), host);
    EXPECT_EQ(hvm().get(handedOut.get(), "next")->get_number_of_elements(), 0u);
    hvm().deleteObjects(handedOut.get());
    EXPECT_EQ(Linked::alive, 2);
}

TEST_F(ObjectHandleTest, NativeCodeMayDeleteAnObjectInARing)
{
    publishClass<Ringed>([](auto& c) { c.constructor(); });
    for (int const length : {1, 2, 5}) {
        std::vector<Ringed*> ring;
        for (int i = 0; i < length; ++i)
            ring.push_back(new Ringed);
        for (int i = 0; i < length; ++i)
            ring[i]->others.emplace_back(ring[(i + 1) % length]);
        delete ring.front();
        EXPECT_EQ(Ringed::alive, length - 1);
        static_cast<void>(hvm().objects()); // between two calls nothing can be on its way out
        EXPECT_EQ(Ringed::alive, 0) << length;
    }
}

TEST_F(ObjectHandleTest, AHandleBelongsToOneBinding)
{
    auto const moved = std::make_unique<Tally>();
    Handle handle(new Tally);
    Tally* const first = handle.get();
    COSInterfacePtr host = basic::BindingRegistry::find(first);
    basic::BindingRegistry::hijack(first, moved.get(), host, COSNameID("tests.Tally"));
    delete first;
    EXPECT_EQ(handle.get(), nullptr);
    EXPECT_EQ(host->getExternalReferenceCount(), 1) << "only this one";
    Tally beside;
    Handle const kept(moved.get());
    basic::BindingRegistry::hijack(&beside, &beside, host, COSNameID("tests.Tally"));
    handle.reset(&beside);
    EXPECT_EQ(host->getExternalReferenceCount(), 3);
    basic::BindingRegistry::release(&beside);
    EXPECT_TRUE(!handle && kept.get() == moved.get()) << "its own handles are released with a binding";
    EXPECT_EQ(host->getExternalReferenceCount(), 2);
    basic::BindingRegistry::release(moved.get());

    auto* const here = new Tally;
    handle.reset(here);
    {
        velmara::Hvm another;
        velmara::Hvm::Scope const scope(another);
        TallyInfo::publishIn("tests");
        handle.reset(new Tally);
        EXPECT_NE(handle.get(), nullptr);
    }
    EXPECT_EQ(Tally::alive, 3);
    EXPECT_EQ(handle.get(), nullptr) << "what it referred to is destroyed";
    EXPECT_EQ(references(here), 1);
}

TEST_F(ObjectHandleTest, ADestroyedObjectIsNotAccessed)
{
    publishClass<Floating, HandleClassInfo<Floating, 0>>([](auto& c) { c.constructor(); });
    alignas(Floating) std::byte place[sizeof(Floating)];
    auto* const floating = new (place) Floating;
    ObjectHandle<Floating> handle(floating);
    floating->~Floating();
    std::ranges::fill(place, std::byte{0});
    EXPECT_TRUE(!handle && handle == floating);
    EXPECT_EQ(ObjectHandle<Floating>(handle).get(), nullptr);
    handle.reset();
    EXPECT_FALSE(handle == floating);
}

} // namespace
