#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <new>
#include <stdexcept>

using namespace described;
using velmara::ArrayPtr;

using ClassTest = HvmTest;

TEST_F(ClassTest, FailedDescriptionIsDroppedNamedAndTriedAgain)
{
    int attempts = 0;
    publish(new Class("A", [&attempts](orbis::COSClass* cls) {
        cls->addMethod(answering("f", {"A"}, 1));
        if (++attempts == 1)
            throw std::runtime_error("not yet");
        if (attempts == 2)
            throw std::bad_alloc();
    }));
    EXPECT_EQ(attempts, 0) << "not before it is needed";
    expectMessage([&] { hvm().construct("A"); }, {"VELMARA:class:initialization: ", "\"A\"", "not yet"});
    EXPECT_EQ(errorOf([&] { hvm().construct("A"); }), "VELMARA:memory:exhausted");
    EXPECT_EQ(hvm().describeClass("A").methods.size(), 1u);
    EXPECT_NE(orbis::COSClass::getClass("A"), nullptr);
    EXPECT_EQ(attempts, 3);
}

TEST_F(ClassTest, RefusedMembersAreNotLeaked)
{
    auto const f = [](std::vector<std::string> const& inputs) { return answering("f", inputs, 1, {.isStatic = true}); };
    std::pair<char const*, std::function<void(orbis::COSClass*)>> const cases[] = {
        {"VELMARA:class:duplicateMember",
         [&](orbis::COSClass* cls) {
             for (std::size_t const count : {1, 2, 1})
                 cls->addMethod(f(std::vector<std::string>(count, "any")));
         }},
        {"VELMARA:class:duplicateMember",
         [&](orbis::COSClass* cls) {
             cls->addMethod(f({"any"}));
             auto* const property = new Property;
             property->name = "f";
             cls->addProperty(property);
         }},
        {"VELMARA:member:name", [](orbis::COSClass* cls) { cls->addMethod(answering("", {"any"}, 1)); }},
        {"VELMARA:member:noObjectInput", [](orbis::COSClass* cls) { cls->addMethod(answering("f", {}, 1)); }},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        std::string id, name = "K" + std::to_string(i);
        publish(new Class(name, [&](orbis::COSClass* cls) { id = messageIdOf([&] { cases[i].second(cls); }); }));
        hvm().describeClass(name);
        EXPECT_EQ(id, cases[i].first);
    }
    orbis::COSClass* const cls = orbis::COSClass::getClass("K1");
    EXPECT_EQ(messageIdOf([&] { cls->addMethod(answering("g", {"K1"}, 1)); }), "VELMARA:class:closed");
    EXPECT_EQ(messageIdOf([&] { publish(new Class("K1")); }), "VELMARA:package:duplicate");
}

TEST_F(ClassTest, DerivedMembersHideEqualSignaturesOnly)
{
    publish(new Class("A", [](orbis::COSClass* cls) {
        cls->addMethod(answering("f", {"A", "double scalar"}, 1));
        cls->addMethod(answering("f", {"A", "char vector"}, 2));
        cls->addMethod(answering("g", {"A"}, 3));
        cls->addMethod(answering("g", {"A", "any"}, 4));
        cls->addMethod(new Method("A", "A", {}, [](Call const& call) { call.outputCount = 1; }));
    }));
    publish(new Class("B", [](orbis::COSClass* cls) {
        setSuperclass(cls, "A");
        cls->addMethod(answering("f", {"B", "double scalar"}, 10));
        cls->addMethod(answering("g", {"B"}, 30, {.overridesAll = true}));
    }));
    ArrayPtr const b = hvm().construct("B"), one = number(1), word(hvCreateString("x"));
    auto const call = [&](char const* name, std::vector<hvArray_tag*> const& inputs) {
        return scalar<double>(hvm().call(b.get(), name, inputs));
    };
    EXPECT_EQ(call("f", {one.get()}), 10);
    EXPECT_EQ(call("f", {word.get()}), 2);
    EXPECT_EQ(call("g", {}), 30);
    EXPECT_EQ(errorOf([&] { call("g", {one.get()}); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(methodsOf("B"), "B: result = f(a: B, b: double scalar) -> double scalar\n"
                              "B: result = g(a: B) -> double scalar\n"
                              "A: result = f(a: A, b: char vector) -> double scalar\n");
}

TEST_F(ClassTest, SealedThingsStaySealed)
{
    publish(new Class("A", [](orbis::COSClass* cls) {
        cls->addMethod(answering("f", {"A", "double scalar"}, 1, {.isSealed = true}));
    }));
    publish(new Class("Same", [](orbis::COSClass* cls) {
        setSuperclass(cls, "A");
        cls->addMethod(answering("f", {"Same", "double scalar"}, 1));
    }));
    publish(new Class("Other", [](orbis::COSClass* cls) {
        setSuperclass(cls, "A");
        cls->addMethod(answering("f", {"Other", "char"}, 1));
    }));
    EXPECT_EQ(errorOf([&] { hvm().construct("Same"); }), "VELMARA:class:initialization");
    EXPECT_EQ(errorOf([&] { hvm().construct("Other"); }), "");
}

TEST_F(ClassTest, HierarchiesAreOrderedAndFreeOfCycles)
{
    auto const below = [](std::vector<char const*> supers) {
        return [supers](orbis::COSClass* cls) {
            std::vector<orbis::COSNameID> const names(supers.begin(), supers.end());
            orbis::host_extensions::setSuperclasses(cls, names);
        };
    };
    publish(new Class("Top", [](orbis::COSClass* cls) { cls->addMethod(answering("f", {"Top"}, 1)); }));
    publish(new Class("Left", below({"Top"})));
    publish(new Class("Right", [&](orbis::COSClass* cls) {
        below({"Top"})(cls);
        cls->addMethod(answering("f", {"Right"}, 2));
    }));
    publish(new Class("Bottom", below({"Left", "Right"})));
    publish(new Class("Snake", below({"Tail"})));
    publish(new Class("Tail", below({"Snake"})));
    publish(new Class("Orphan", below({"Missing"})));
    ArrayPtr const bottom = hvm().construct("Bottom");
    EXPECT_EQ(scalar<double>(hvm().call(bottom.get(), "f")), 2) << "Right comes before Top, which both reach";
    EXPECT_TRUE(hvIsA(bottom.get(), "Top"));
    EXPECT_FALSE(hvIsA(bottom.get(), "Tail"));
    ArrayPtr const right = hvm().construct("Right"), mixed = rowOf("Top", {&bottom, &right});
    orbis::omSetClassOfHeterogeneousArray(mixed.get());
    EXPECT_EQ(velmara::className(mixed.get()), "Right");
    for (char const* bad : {"Snake", "Tail", "Orphan"})
        EXPECT_EQ(errorOf([&] { hvm().construct(bad); }), "VELMARA:class:initialization") << bad;
}

TEST_F(ClassTest, UnpublishingABaseUnpublishesItsSubclasses)
{
    int destroyed = 0;
    auto const publishBase = [&] {
        orbis::COSPackage::addPackage(new Package("p", [&](orbis::COSPackage* package) {
            auto* const base = new Class("p.Base");
            base->destroy = [&](COSInterface*, void*) { ++destroyed; };
            package->addClass(base);
        }));
    };
    publishBase();
    publish(new Class("Derived", [](orbis::COSClass* cls) { setSuperclass(cls, "p.Base"); }));
    ArrayPtr const derived = hvm().construct("Derived");
    orbis::COSPackage::removePackage("p");
    EXPECT_EQ(destroyed, 1);
    EXPECT_FALSE(velmara::isValid(derived.get()));
    EXPECT_EQ(errorOf([&] { hvm().construct("Derived"); }), "VELMARA:class:initialization");
    publishBase();
    EXPECT_TRUE(hvIsA(hvm().construct("Derived").get(), "p.Base"));
    orbis::COSPackage::addPackage(new Package("d", [](orbis::COSPackage* package) {
        auto* const leaving = new Class("d.Leaving", [](orbis::COSClass* cls) { setSuperclass(cls, "p.Base"); });
        leaving->destroy = [](COSInterface*, void*) { orbis::COSPackage::removePackage("d"); };
        package->addClass(leaving);
    }));
    ArrayPtr const leaving = hvm().construct("d.Leaving");
    orbis::COSPackage::removePackage("p"); // takes d.Leaving back, which removes itself meanwhile
    EXPECT_EQ(hvm().lookUp("d"), velmara::NameKind::None);
}
