#include "HvmTest.hpp"
#include "library/Shared.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/classes/NonHandleClassInfo.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"

#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace orbis;
using namespace orbis::factory;
using full::SharingType;
using velmara::ArrayPtr;

namespace {

template <class Base>
struct Bare final : Base {
    Bare() : Base("tests.Bare", "what it is for") {}
    char const* getDescription() const override { return Base::getDescription() + 5; }
    void initializeClass(COSClass*) override {}
};

struct Counted {
    Counted()
    {
        ++alive;
        CopyableSupport::addToUnconstructedSet(this);
    }
    Counted(Counted const&) = delete;
    Counted& operator=(Counted const&) = delete;
    virtual ~Counted() { --alive; }
    inline static int alive = 0;
};

} // namespace

PUBLISHED_IN_TESTS(Counted)

namespace {

using ClassInfoTest = HvmTest;

/// Creates that many host objects of its class, then fails. Deletes its native objects.
struct LimitedInfo final : HandleClassInfo<Counted, 1> {
    LimitedInfo() : HandleClassInfo("tests.Counted", "") {}
    void initializeClass(COSClass* cls) override
    {
        publish(cls, describe<Counted>().staticMethod("all", [] { return all; }).staticMethod("last", [] {
            return all.back();
        }));
    }
    void* createInstanceData() override
    {
        if (remaining-- == 0)
            throw std::runtime_error("no more");
        return nullptr;
    }
    inline static int remaining = 0;
    inline static std::vector<Counted*> all;
};

/// A class whose objects the host deletes gives away the address of its first member, and of another one.
struct Pair final {
    Counted first, second;
    Counted* one() { return &first; }
    Counted* other() { return &second; }
    std::vector<Counted*> both() { return {&first, &second}; }
};

} // namespace

PUBLISHED_IN_TESTS(Pair)

namespace {

struct PairInfo final : OrbisFactoryClassInfo {
    PairInfo() : OrbisFactoryClassInfo("tests.Pair", "") {}
    void initializeClass(COSClass* cls) override
    {
        publish(cls, describe<Pair>()
                         .constructor()
                         .method("one", &Pair::one)
                         .method("both", &Pair::both)
                         .method("otherOf", [](Pair* pair) { return pair->other(); })
                         .property("other", &Pair::other));
    }
    void* createInstanceData() override { return nullptr; }
    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        delete static_cast<Pair*>(detail::forgetBinding(object, data));
        return true;
    }
    bool isHandle() const override { return true; }
};

TEST_F(ClassInfoTest, WhatLiesInsideAnObjectIsNeverTheHosts)
{
    registerOrbisPackage("tests", [](COSPackage* package) {
        package->addClass(new PairInfo);
        package->addClass(new LimitedInfo);
    });
    LimitedInfo::remaining = 4;
    ArrayPtr pair = hvm().construct("tests.Pair");
    EXPECT_EQ(hvm().call(pair.get(), "both")->get_number_of_elements(), 2u);
    ArrayPtr one = hvm().call(pair.get(), "one");
    ArrayPtr const other = hvm().call(pair.get(), "otherOf");
    EXPECT_TRUE(velmara::isSameObject(hvm().call(pair.get(), "one").get(), one.get()));
    EXPECT_TRUE(velmara::isSameObject(hvm().get(pair.get(), "other").get(), other.get()));
    one.reset();
    EXPECT_EQ(Counted::alive, 2);
    pair.reset();
    EXPECT_TRUE(velmara::isValid(other.get())) << "it keeps its whole";
    EXPECT_EQ(Counted::alive, 2);
}

TEST_F(ClassInfoTest, AResultThatCannotBeMarshaledStaysWithItsOwner)
{
    registerOrbisPackage("tests", [](COSPackage* package) { package->addClass(new LimitedInfo); });
    auto& all = LimitedInfo::all = {new Counted, new Counted, new Counted};
    LimitedInfo::remaining = 1;
    ArrayPtr const before = hvm().callStatic("tests.Counted", "last");
    std::swap(all.front(), all.back());
    LimitedInfo::remaining = 1;
    EXPECT_THROW(hvm().callStatic("tests.Counted", "all"), velmara::Error);
    EXPECT_EQ(Counted::alive, 3);
    EXPECT_EQ(basic::registry().size(), 1u) << "what was bound before stays bound";

    LimitedInfo::remaining = 0;
    EXPECT_THROW(hvm().getStatic("tests.Counted", "held"), velmara::Error);
    EXPECT_EQ(Counted::alive, 3);
    LimitedInfo::remaining = 0;
    EXPECT_THROW(hvm().callStatic("tests.Counted", "last"), velmara::Error);
    EXPECT_EQ(Counted::alive, 2) << "one that is given alone is the host's, which has no object to delete it with";
    delete all[1];
}

TEST_F(ClassInfoTest, AConstructedObjectIsNotInTheUnconstructedSet)
{
    publishClass<Counted>([](auto& c) { c.constructor(); });
    ArrayPtr const made = hvm().construct("tests.Counted");
    ASSERT_EQ(basic::registry().size(), 1u);
    EXPECT_FALSE(CopyableSupport::isInUnconstructedSet(basic::registry().begin()->first));
}

/// Destroys the instance data of bound objects by hand: what one of the templates does with the binding and with the
/// native object.
TEST_F(ClassInfoTest, HandlesReleaseTheBindingAndDeleteOnlyOnRequest)
{
    Bare<HandleClassInfo<Counted, 0>> keeps;
    Bare<HandleClassInfo<Counted, 1>> deletes;
    for (COSClassInfo* const info : {static_cast<COSClassInfo*>(&keeps), static_cast<COSClassInfo*>(&deletes)}) {
        bool const isOwner = info == &deletes;
        EXPECT_TRUE(info->isHandle());
        EXPECT_EQ(info->createInstanceData(), nullptr);
        EXPECT_TRUE(info->slot10Flag());
        EXPECT_STREQ(info->getDetailedDescription(), "it is for");
        EXPECT_FALSE(info->destroyInstanceData(nullptr, nullptr));
        auto* const unbound = new Counted;
        EXPECT_FALSE(info->destroyInstanceData(nullptr, unbound));
        EXPECT_EQ(Counted::alive, 1);
        basic::registry().emplace(unbound, new basic::RegistryEntry(unbound, nullptr));
        EXPECT_TRUE(info->destroyInstanceData(nullptr, unbound));
        EXPECT_FALSE(basic::BindingRegistry::contains(unbound));
        EXPECT_EQ(Counted::alive, isOwner ? 0 : 1);
        if (!isOwner)
            delete unbound;
    }
}

template <class Kind>
class SharedClassInfoTest : public ClassInfoTest {};

using Kinds = ::testing::Types<Boost, Std>;
TYPED_TEST_SUITE(SharedClassInfoTest, Kinds);

TYPED_TEST(SharedClassInfoTest, TheSharingTypeSaysWhoseTheKeptReferenceIs)
{
    using Object = Shared<TypeParam>;
    for (auto const& [type, isReleased] :
         {std::pair(SharingType::HostKept, true), std::pair(SharingType::Shared, false),
          std::pair(SharingType::HostKeptAlone, true), std::pair(SharingType(5), false)}) {
        Bare<typename TypeParam::template Info<Object>> info;
        typename Object::Pointer const object(new Object);
        object->type = type;
        auto* const address = static_cast<full::Wrappable*>(object.get());
        acquireReference(object.get());
        basic::registry().emplace(address, new basic::RegistryEntry(address, nullptr));
        EXPECT_TRUE(info.isHandle());
        EXPECT_EQ(info.createInstanceData(), nullptr);
        EXPECT_FALSE(info.destroyInstanceData(nullptr, nullptr));
        EXPECT_TRUE(info.destroyInstanceData(nullptr, address));
        EXPECT_FALSE(basic::BindingRegistry::contains(address));
        EXPECT_EQ(object.use_count(), isReleased ? 1 : 2);
        releaseReference(object.get());
    }
}

TYPED_TEST(SharedClassInfoTest, ObjectsDestroyedWithoutNotificationAreNotAccessed)
{
    using Object = Shared<TypeParam>;
    publishClass<Object, typename TypeParam::template Info<Object>>([](auto& c) { c.constructor(); });
    typename Object::Pointer object(new Object);
    ArrayPtr const array(full::BindingRegistry::announce(object.get(), COSNameID(TypeParam::name)));
    std::thread([&] { object.reset(); }).join(); // no virtual machine is current there
    EXPECT_EQ(Object::alive, 0);
    this->hvm().deleteObjects(array.get());
    EXPECT_TRUE(basic::registry().empty());
}

TYPED_TEST(SharedClassInfoTest, TheKeptReferenceIsOfTheHostObjectThatIsBound)
{
    using Object = Shared<TypeParam>;
    publishClass<Object, typename TypeParam::template Info<Object>>([](auto& c) { c.constructor(); });
    typename Object::Pointer const object(new Object);
    object->type = SharingType::HostKept;
    acquireReference(object.get());
    auto const announce = [&] { return full::BindingRegistry::announce(object.get(), COSNameID(TypeParam::name)); };
    ArrayPtr first(announce());
    full::BindingRegistry::release(object.get());
    ArrayPtr second(announce());
    first.reset();
    EXPECT_EQ(object.use_count(), 2);
    second.reset();
    EXPECT_EQ(object.use_count(), 1);
}

// A value class.
struct Amount {
    Amount() { ++alive; }
    explicit Amount(double v) : value(v) { ++alive; }
    Amount(Amount const& other) : value(other.value) { ++alive; }
    Amount& operator=(Amount const&) = default;
    ~Amount() { --alive; }
    double get() const { return value; }
    void add(Amount const& other) { value += other.value; }
    Amount plus(Amount other) const { return Amount(value + other.value); }
    Amount const& same() const { return *this; }
    Amount const* orNull(bool isNull) const { return isNull ? nullptr : this; }
    bool isWaiting() const { return CopyableSupport::isInUnconstructedSet(this); }
    static double ofOrMinusOne(Amount const* amount) { return amount ? amount->value : -1; }
    double value = 0;
    inline static int alive = 0;
};

} // namespace

PUBLISHED_IN_TESTS(Amount, using Policy = ValuePolicy;)

namespace {

using AmountInfo = Described<Amount, NonHandleClassInfo<Amount, Amount>>;

/// Leaves the creation of values to the constructors.
struct LateInfo : NonHandleClassInfo<Amount, Amount> {
    using NonHandleClassInfo::NonHandleClassInfo;
    void* createInstanceData() override { return nullptr; }
};

void describeAmount(ClassDescriber<Amount>& amount)
{
    amount.constructor()
        .constructor<double>("value")
        .method("get", &Amount::get)
        .method("add", &Amount::add)
        .method("plus", &Amount::plus)
        .method("same", &Amount::same)
        .method("orNull", &Amount::orNull)
        .method("isWaiting", &Amount::isWaiting)
        .staticMethod("ofOrMinusOne", &Amount::ofOrMinusOne)
        .staticMethod("ofAnother",
                      [](Amount const&) {
                          ArrayPtr const none(omCreateORBISMatrix(0, 0, "tests.Amount"));
                          return detail::Argument<Amount const&>(COSValue(none.get())).get().value;
                      })
        .property("twin", &Amount::same, &Amount::add);
}

class ValueClassTest : public HvmTest {
protected:
    ValueClassTest() { publishClass<Amount, NonHandleClassInfo<Amount, Amount>>(&describeAmount); }
    ~ValueClassTest() override { EXPECT_EQ(Amount::alive, 0); }

    ArrayPtr amount(double value) { return hvm().construct("tests.Amount", inputs(number(value))); }
    ArrayPtr call(ArrayPtr const& object, char const* method, hvArray* input)
    {
        return hvm().call(object.get(), method, {&input, 1});
    }
    double valueOf(ArrayPtr const& object) { return scalar<double>(hvm().call(object.get(), "get")); }
};

TEST_F(ValueClassTest, EachHostObjectHasItsOwnValue)
{
    ArrayPtr const three = amount(3), four = amount(4), none = hvm().construct("tests.Amount");
    EXPECT_EQ(Amount::alive, 3);
    EXPECT_TRUE(basic::registry().empty()) << "values have no identity";
    call(three, "add", four.get());
    EXPECT_EQ(valueOf(three), 7);
    EXPECT_EQ(valueOf(four), 4);
    EXPECT_EQ(valueOf(none), 0);
    EXPECT_FALSE(scalar<bool>(hvm().call(three.get(), "isWaiting")));

    ArrayPtr const sum = call(three, "plus", four.get()), same = hvm().call(three.get(), "same");
    EXPECT_EQ(valueOf(sum), 11);
    EXPECT_FALSE(velmara::isSameObject(same.get(), three.get()));
    call(same, "add", same.get());
    EXPECT_EQ(valueOf(same), 14);
    EXPECT_EQ(valueOf(three), 7);
    hvm().set(three.get(), "twin", four.get());
    EXPECT_EQ(valueOf(hvm().get(three.get(), "twin")), 11);
    EXPECT_TRUE(basic::registry().empty());
}

TEST_F(ValueClassTest, NullIsForPointersOnly)
{
    ArrayPtr const one = amount(1), none(omCreateORBISMatrix(0, 0, "tests.Amount"));
    EXPECT_EQ(scalar<double>(hvm().callStatic("tests.Amount", "ofOrMinusOne", inputs(none))), -1);
    expectMessage([&] { call(one, "add", none.get()); },
                  {"orbis_factory:orbis_factory:null_input: Input \"p0\" must be"});
    expectMessage([&] { hvm().set(one.get(), "twin", none.get()); }, {":null_input: The value must be an object"});
    expectMessage([&] { hvm().callStatic("tests.Amount", "ofAnother", inputs(one)); }, {":null_input: The value must"});
    EXPECT_EQ(call(one, "orNull", number(1).get())->get_number_of_elements(), 0u);
    EXPECT_EQ(valueOf(call(one, "orNull", number(0).get())), 1);
}

TEST_F(ValueClassTest, TheNativeValueIsDestroyedWithItsHostObject)
{
    AmountInfo info(&describeAmount);
    EXPECT_FALSE(info.isHandle());
    void* const data = info.createInstanceData();
    EXPECT_TRUE(CopyableSupport::isInUnconstructedSet(data));
    EXPECT_TRUE(info.destroyInstanceData(nullptr, data));
    EXPECT_FALSE(CopyableSupport::isInUnconstructedSet(data));
    EXPECT_FALSE(info.destroyInstanceData(nullptr, nullptr));
    ArrayPtr const last = amount(1);
    amount(2).reset();
    EXPECT_EQ(Amount::alive, 1);
    endHvm();
    EXPECT_EQ(Amount::alive, 0);
}

TEST_F(ValueClassTest, AConstructorCreatesTheMissingValue)
{
    COSPackage::removePackage("tests");
    publishClass<Amount, LateInfo>(&describeAmount);
    ArrayPtr const three = amount(3);
    EXPECT_EQ(valueOf(three), 3);
    EXPECT_EQ(errorOf([&] { hvm().call(three.get(), "same"); }), "orbis_factory:orbis_factory:null_self");
}

} // namespace
