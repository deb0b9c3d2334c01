#include "HvmTest.hpp"
#include "library/Shared.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/descriptors/ClasslessGetter.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/types/SharedPointerPolicy.hpp"
#include "orbis/factory/types/sharedObjectVectors.hpp"

#include "orbis/COSPropInfo.hpp"

#include <vector>

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

/// What native code holds, and what it does with it at the call of a script.
template <class Kind>
struct Native {
    using Object = Shared<Kind>;
    using Pointer = typename Object::Pointer;
    inline static std::vector<Pointer> held;
    inline static std::vector<Object*> known;

    static std::vector<Pointer> const& all() { return held; }
    static void hold(std::vector<Pointer> const& objects) { held = objects; }
    static std::vector<Object*> allRaw() { return known; }
    static void know(std::vector<Object*> objects) { known = std::move(objects); }
    static Pointer first() { return held.empty() ? Pointer() : held.front(); }
    static void holdFirst(Pointer object) { held = {std::move(object)}; }
    static Object* firstRaw() { return known.empty() ? nullptr : known.front(); }
    static void knowFirst(Object* object) { known = {object}; }
};

template <class Kind>
class SharedObjectsTest : public HvmTest {
protected:
    using N = Native<Kind>;
    using Object = Shared<Kind>;
    using Derived = SharedDerived<Kind>;

    SharedObjectsTest()
    {
        registerOrbisPackage("tests", [](COSPackage* package) {
            package->addClass(new Described<Derived, typename Kind::template Info<Derived>>(
                [](auto& c) { c.constructor().template inherits<Object>(); }));
            package->addClass(new Described<Object, typename Kind::template Info<Object>>(&describeBase));
        });
    }
    ~SharedObjectsTest() override
    {
        N::held.clear();
        N::known.clear();
        EXPECT_EQ(Object::alive, 0);
    }

    static void describeBase(ClassDescriber<Object>& c)
    {
        c.constructor()
            .staticMethod("all", &N::all)
            .staticMethod("hold", &N::hold)
            .staticMethod("allRaw", &N::allRaw)
            .staticMethod("know", &N::know)
            .staticMethod("first", &N::first)
            .staticMethod("holdFirst", &N::holdFirst)
            .staticMethod("firstRaw", &N::firstRaw)
            .staticMethod("knowFirst", &N::knowFirst)
            .property(
                "one", [](Object*) { return N::first(); }, [](Object*, typename N::Pointer p) { N::holdFirst(p); })
            .property(
                "many", [](Object*) { return N::held; },
                [](Object*, std::vector<typename N::Pointer> const& all) { N::hold(all); });
    }

    ArrayPtr make(bool isDerived = false) { return this->hvm().construct(isDerived ? Kind::derivedName : Kind::name); }
    ArrayPtr call(char const* method) { return this->hvm().callStatic(Kind::name, method); }
    void call(char const* method, ArrayPtr const& input)
    {
        hvArray* const inputs[] = {input.get()};
        EXPECT_EQ(this->hvm().callStatic(Kind::name, method, inputs), nullptr);
    }
    ArrayPtr row(std::initializer_list<ArrayPtr const*> objects) { return this->rowOf(Kind::name, objects); }
};

struct Foreign final : HandleClassInfo<int, 0> {
    Foreign() : HandleClassInfo("tests.Foreign", "") {}
    void initializeClass(COSClass*) override {}
};

using Kinds = ::testing::Types<Boost, Std>;
TYPED_TEST_SUITE(SharedObjectsTest, Kinds);

TYPED_TEST(SharedObjectsTest, WhatNobodySharesIsAnObjectButNoShare)
{
    Shared<TypeParam> own;
    Native<TypeParam>::known = {&own};
    ArrayPtr object = this->call("firstRaw");
    this->call("knowFirst", object);
    EXPECT_EQ(Native<TypeParam>::known.at(0), &own);
    EXPECT_EQ(this->errorOf([&] { this->call("holdFirst", object); }), "VELMARA:native:exception");
    object.reset();
    EXPECT_EQ(Shared<TypeParam>::alive, 1);
    { // a pointer into an object of another kind
        auto const outer = std::make_shared<std::pair<int, Shared<Std>>>();
        if constexpr (std::is_same_v<TypeParam, Std>) {
            Native<Std>::held = {std::shared_ptr<Shared<Std>>(outer, &outer->second)};
            ArrayPtr const inner = this->call("first");
            Native<Std>::held.clear();
            EXPECT_EQ(outer.use_count(), 2);
        }
    }
}

TYPED_TEST(SharedObjectsTest, RowsHaveTheMostSpecificCommonClass)
{
    auto const base = TypeParam::name, derived = TypeParam::derivedName;
    ArrayPtr const a = this->make(), b = this->make(true), c = this->make(true);
    std::pair<ArrayPtr, char const*> const cases[] = {{this->row({&a, &b}), base},
                                                      {this->row({&b, nullptr, &c}), derived},
                                                      {this->row({}), base},
                                                      {this->row({nullptr}), base}};
    for (auto const& [row, cls] : cases) {
        this->call("hold", row);
        this->call("know", row);
        for (char const* const method : {"all", "allRaw"}) {
            ArrayPtr const given = this->call(method);
            EXPECT_EQ(velmara::className(given.get()), cls);
            EXPECT_EQ(given->get_dimensions()[0], 1u);
            ASSERT_EQ(given->get_dimensions()[1], row->get_number_of_elements());
            for (std::size_t i = 0; i < Native<TypeParam>::held.size(); ++i) {
                EXPECT_EQ(this->objectIn(given, i), this->objectIn(row, i));
                EXPECT_EQ(Native<TypeParam>::held[i].get(), Native<TypeParam>::known[i]);
            }
        }
    }
    COSClass::addGlobalClass(new Foreign);
    ArrayPtr const foreign = this->hvm().construct("tests.Foreign");
    ArrayPtr const hidden(omCreateORBISMatrix(1, 1, TypeParam::name));
    omSetArrayElement(hidden.get(), 0, COSClass::getClass(TypeParam::name)->newInstance()); // no native object
    for (char const* const method : {"hold", "know"}) {
        EXPECT_EQ(this->errorOf([&] { this->call(method, foreign); }), "VELMARA:dispatch:noMatch");
        EXPECT_EQ(this->errorOf([&] { this->call(method, hidden); }), "orbis_factory:orbis_factory:null_input");
    }
}

TYPED_TEST(SharedObjectsTest, PropertiesReferToTheirObjects)
{
    ArrayPtr const owner = this->make(), a = this->make(), b = this->make(true);
    auto& hvm = this->hvm();
    hvm.set(owner.get(), "many", this->row({&a, nullptr, &b}).get());
    EXPECT_EQ(hvm.get(owner.get(), "many")->get_number_of_elements(), 3u);
    EXPECT_TRUE(velmara::isSameObject(hvm.get(owner.get(), "one").get(), a.get()));
    hvm.set(owner.get(), "one", b.get());
    EXPECT_EQ(Native<TypeParam>::held.size(), 1u);

    using Pointer = typename Shared<TypeParam>::Pointer;
    impl::ClasslessGetter<Pointer, Pointer> const one(&Native<TypeParam>::first);
    impl::ClasslessGetter<std::vector<Pointer>, std::vector<Pointer>> const many(
        [] { return Native<TypeParam>::held; });
    Native<TypeParam>::held.push_back({});
    Native<TypeParam>::held.push_back(Pointer(new Shared<TypeParam>)); // unbound
    this->call("knowFirst", a);
    Native<TypeParam>::held.push_back(
        Pointer(Native<TypeParam>::known[0]->shared_from_this(), Native<TypeParam>::known[0]));
    EXPECT_TRUE(one.canContainInterfaces() && many.canContainInterfaces());
    std::vector<COSInterface*> found;
    for (impl::Getter const* const getter :
         {static_cast<impl::Getter const*>(&one), static_cast<impl::Getter const*>(&many)}) {
        auto interfaces = getter->getInterfaces(nullptr);
        while (interfaces.hasMoreElements())
            found.push_back(interfaces.nextElement());
        EXPECT_THROW(interfaces.nextElement(), ENoElements);
    }
    EXPECT_EQ(found, (std::vector{this->objectIn(b), this->objectIn(b), this->objectIn(a)}));
}

} // namespace
