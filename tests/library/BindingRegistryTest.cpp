#include "HvmTest.hpp"
#include "library/Plain.hpp"

#include "orbis/factory/check.hpp"
#include "orbis/factory/detail/bindings/hostShares.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/CopyableSupport.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/ownership/H_ck.hpp"
#include "orbis/factory/ownership/InterfaceEnumeration.hpp"
#include "orbis/factory/ownership/RawClassPointerMarshaler.hpp"

#include "orbis/COSClass.hpp"
#include "orbis/COSInterface.hpp"

using namespace orbis;
using namespace orbis::factory;
using basic::BindingRegistry;
using velmara::ArrayPtr;

namespace {

/// A class info that makes its native object itself.
struct ValueInfo final : PlainInfo {
    ValueInfo() : PlainInfo("tests.Value") {}
    void* createInstanceData() override
    {
        auto* const made = new Plain;
        CopyableSupport::addToUnconstructedSet(made);
        return made;
    }
    bool destroyInstanceData(COSInterface*, void* data) override
    {
        delete static_cast<Plain*>(data);
        return false;
    }
};

class BindingRegistryTest : public HvmTest {
protected:
    BindingRegistryTest()
    {
        publishPlain();
        registerOrbisPackage("tests", [](COSPackage* package) { package->addClass(new ValueInfo); });
    }

    static ArrayPtr announce(void* object) { return ArrayPtr(BindingRegistry::announce(object, plain())); }
    static COSNameID plain() { return COSNameID("tests.Plain"); }
};

TEST_F(BindingRegistryTest, EachWayToAnnounceGivesTheSameHostObject)
{
    Plain object;
    EXPECT_EQ(basic::registry().bucket_count(), 16u);
    EXPECT_EQ(basic::registry().max_load_factor(), 1.0f);
    bool created = true;
    ArrayPtr const first = announce(&object);
    ArrayPtr const second(BindingRegistry::announce(static_cast<void const*>(&object), plain(), created));
    EXPECT_FALSE(created);
    EXPECT_TRUE(velmara::isSameObject(first.get(), second.get()));
    EXPECT_EQ(static_cast<COSInterface*>(BindingRegistry::announceInternal(&object, plain(), created)),
              objectIn(first));
}

TEST_F(BindingRegistryTest, NullIsNoObject)
{
    EXPECT_FALSE(BindingRegistry::retract(nullptr)) << "without a table";
    bool created = true;
    ArrayPtr const none(BindingRegistry::announce(static_cast<void*>(nullptr), plain(), created));
    EXPECT_FALSE(created);
    EXPECT_EQ(none->get_number_of_elements(), 0u);
    EXPECT_EQ(velmara::className(none.get()), "tests.Plain");
    EXPECT_EQ(static_cast<COSInterface*>(BindingRegistry::announceInternal(nullptr, plain(), created)), nullptr);
    EXPECT_TRUE(basic::registry().empty());
    EXPECT_FALSE(BindingRegistry::release(nullptr) || BindingRegistry::retract(nullptr));
    EXPECT_FALSE(RawClassPointerMarshaler::toCosi(nullptr).hasMoreElements());
}

TEST_F(BindingRegistryTest, ConstructorsStoreOnlyHandles)
{
    Plain object;
    for (bool const store : {false, true}) {
        ArrayPtr const array(omCreateORBISMatrix(1, 1, plain()));
        COSInterfacePtr instance = COSClass::getClass(plain())->newInstance();
        omSetArrayElement(array.get(), 0, instance);
        CopyableSupport::addToUnconstructedSet(&object);
        BindingRegistry::announceForConstructor(&object, plain(), array.get(), store);
        EXPECT_EQ(instance->getNativeObject(plain()), &object);
        EXPECT_EQ(BindingRegistry::contains(&object), store);
        EXPECT_FALSE(CopyableSupport::isInUnconstructedSet(&object));
        BindingRegistry::announceForConstructor(nullptr, plain(), array.get(), store);
        EXPECT_EQ(instance->getNativeObject(plain()), nullptr);
        EXPECT_FALSE(BindingRegistry::contains(nullptr));
        BindingRegistry::release(&object);
    }
}

TEST_F(BindingRegistryTest, HijackMovesOnlyTheBindingOfTheSameHostObject)
{
    Plain p, q, other;
    ArrayPtr const array = announce(&p);
    COSInterface* const host = objectIn(array);
    BindingRegistry::hijack(&p, &q, host, plain());
    EXPECT_FALSE(BindingRegistry::contains(&p));
    EXPECT_EQ(BindingRegistry::find(&q), host);
    EXPECT_EQ(host->getNativeObject(plain()), &q);
    EXPECT_TRUE(velmara::isValid(array.get()));

    ArrayPtr const second = announce(&p);
    BindingRegistry::hijack(&q, &other, objectIn(second), plain());
    EXPECT_EQ(BindingRegistry::find(&q), host) << "a binding to another host object stays";
    EXPECT_EQ(BindingRegistry::find(&other), objectIn(second));

    BindingRegistry::hijack(&other, &q, objectIn(second), plain());
    EXPECT_EQ(BindingRegistry::find(&q), host) << "a bound address keeps its entry";
    EXPECT_EQ(check(), "") << "which is done on purpose";
    EXPECT_FALSE(BindingRegistry::contains(&other));
    BindingRegistry::hijack(&q, &q, host, plain());
    EXPECT_EQ(BindingRegistry::find(&q), host);
    BindingRegistry::hijack(&q, nullptr, host, plain());
    EXPECT_FALSE(BindingRegistry::contains(nullptr) || BindingRegistry::contains(&q));
    EXPECT_EQ(host->getNativeObject(plain()), nullptr);
    BindingRegistry::release(&p);
}

TEST_F(BindingRegistryTest, NoBindingOutlivesItsHostObject)
{
    using Change = void (*)(hvArray* array, COSInterface* host, Plain& p, Plain& q);
    for (Change const change : std::initializer_list<Change>{
             [](hvArray*, COSInterface* host, Plain&, Plain& q) { BindingRegistry::hijack(&q, &q, host, plain()); },
             [](hvArray* array, COSInterface*, Plain&, Plain& q) {
                 BindingRegistry::announceForConstructor(&q, plain(), array, true);
             },
             [](hvArray* array, COSInterface*, Plain&, Plain&) {
                 BindingRegistry::announceForConstructor(nullptr, plain(), array, true);
             },
             [](hvArray*, COSInterface* host, Plain&, Plain& q) {
                 host->setValid(false);
                 EXPECT_THROW(BindingRegistry::hijack(&q, &q, host, plain()), std::exception);
                 EXPECT_FALSE(BindingRegistry::contains(&q)) << "what the host object refuses";
             },
             [](hvArray*, COSInterface* host, Plain& p, Plain& q) {
                 static Plain other;
                 BindingRegistry::hijack(&q, &q, host, plain());
                 BindingRegistry::hijack(&p, &other, host, plain()); // which is bound, but not recorded
             },
         }) {
        Plain p, q;
        ArrayPtr array = announce(&p);
        change(array.get(), objectIn(array), p, q);
        array.reset();
        EXPECT_EQ(BindingRegistry::find(&p), nullptr);
        EXPECT_EQ(BindingRegistry::find(&q), nullptr);
        EXPECT_TRUE(basic::registry().empty());
    }
}

TEST_F(BindingRegistryTest, AHostObjectThatMovesReleasesItsShare)
{
    Plain p, q;
    auto const shared = std::make_shared<int>(1);
    ArrayPtr const array = announce(&p);
    detail::shareWithHost(array.get(), shared);
    BindingRegistry::hijack(&p, &p, objectIn(array), plain());
    EXPECT_EQ(shared.use_count(), 2);
    BindingRegistry::hijack(&p, &q, objectIn(array), plain());
    EXPECT_EQ(shared.use_count(), 1);
}

TEST_F(BindingRegistryTest, ValuesAreCopiedWithoutABinding)
{
    Plain source{42};
    static void* filled = nullptr;
    ArrayPtr const array(
        BindingRegistry::announceWithoutStoring(&source, COSNameID("tests.Value"), [](void* destination, void* from) {
            filled = destination;
            EXPECT_TRUE(CopyableSupport::isInUnconstructedSet(destination));
            *static_cast<Plain*>(destination) = *static_cast<Plain*>(from);
        }));
    EXPECT_EQ(static_cast<Plain*>(objectIn(array)->getNativeObject(COSNameID("tests.Value")))->value, 42);
    EXPECT_FALSE(CopyableSupport::isInUnconstructedSet(filled));
    EXPECT_TRUE(basic::registry().empty());
}

TEST_F(BindingRegistryTest, AClassThatIsNotPublishedIsRefused)
{
    Plain object;
    try {
        BindingRegistry::announce(&object, COSNameID("tests.Nobody"));
        ADD_FAILURE();
    } catch (foundation::core::except::IMsgIDException const& error) {
        EXPECT_EQ(error.getErrorID(), "orbis_factory:orbis_factory:no_such_class");
        EXPECT_EQ(error.getArguments().at(0), "tests.Nobody");
    }
    EXPECT_TRUE(basic::registry().empty());
}

TEST_F(BindingRegistryTest, TheDumpHasItsExactForm)
{
    auto const dump = [](COSInterface const* marked) {
        testing::internal::CaptureStdout();
        basic::dumpRegistry(marked);
        std::fflush(stdout);
        return testing::internal::GetCapturedStdout();
    };
    std::string const line(58, '=');
    std::string const head = line + "\n             ptr \t   external \t   internal\n";
    std::string const tail = line + "\n\n";
    EXPECT_EQ(dump(nullptr), head + tail);

    Plain object;
    ArrayPtr const array = announce(&object);
    COSInterfacePtr const held = objectIn(array);
    char row[100];
    std::snprintf(row, sizeof row, "%#15llx \t          1 \t          1 \n",
                  static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(static_cast<COSInterface*>(held))));
    EXPECT_EQ(dump(nullptr), head + " " + row + tail);
    EXPECT_EQ(dump(held), head + "*" + row + tail);
}

struct Handle : H_ck {
    using H_ck::decrementRefCount;
    using H_ck::incrementRefCount;
};

TEST_F(BindingRegistryTest, HandlesCountAndEnumerationsYieldOnce)
{
    Handle::incrementRefCount(nullptr);
    Handle::decrementRefCount(nullptr);
    Plain object;
    ArrayPtr array = announce(&object);
    COSInterface* const host = objectIn(array);
    Handle::incrementRefCount(host);
    EXPECT_EQ(host->getExternalReferenceCount(), 1);
    array.reset();
    EXPECT_EQ(BindingRegistry::find(&object), host) << "the handle keeps the host object";
    {
        auto one = RawClassPointerMarshaler::toCosi(&object);
        auto another = RawClassPointerMarshaler::toCosi(&object);
        auto const copy = one;
        EXPECT_EQ(InterfaceEnumeration::liveCount(), 2);
        EXPECT_EQ(one.nextElement(), host);
        EXPECT_FALSE(copy.hasMoreElements());
        EXPECT_THROW(one.nextElement(), ENoElements);
        EXPECT_TRUE(another.hasMoreElements());
        EXPECT_THROW(Enumeration<COSInterface*>().nextElement(), ENoElements);
    }
    EXPECT_EQ(InterfaceEnumeration::liveCount(), 0);
    Handle::decrementRefCount(host);
    EXPECT_FALSE(BindingRegistry::contains(&object));
}

TEST_F(BindingRegistryTest, TheUnconstructedSetKeepsEachAddressOnce)
{
    int places[5];
    for (int const i : {3, 0, 4, 1, 3})
        CopyableSupport::addToUnconstructedSet(&places[i]);
    CopyableSupport::addToUnconstructedSet(nullptr);
    EXPECT_FALSE(CopyableSupport::isInUnconstructedSet(&places[2]));
    CopyableSupport::removeFromUnconstructedSet(&places[2]);
    for (int const i : {1, 3, 0, 4}) {
        EXPECT_TRUE(CopyableSupport::isInUnconstructedSet(&places[i]));
        CopyableSupport::removeFromUnconstructedSet(&places[i]);
        EXPECT_FALSE(CopyableSupport::isInUnconstructedSet(&places[i]));
    }
    EXPECT_TRUE(CopyableSupport::isInUnconstructedSet(nullptr));
}

} // namespace
