#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include "orbis/COSTypeRepository.hpp"

#include <stdexcept>

using namespace described;
using orbis::COSPackage;
using velmara::ArrayPtr;
using velmara::NameKind;

using PackageTest = HvmTest;

TEST_F(PackageTest, PopulatedWhenFirstAskedForWhatItHolds)
{
    std::string log;
    COSPackage::addPackage(new Package("p", [&](COSPackage* package) {
        log += "p";
        package->addSubPackage(new Package("q", [&](COSPackage* inner) {
            log += "q";
            inner->addClass(new Class("p.q.C"));
        }));
        package->addFunction(answering("f", {"double scalar"}, 5));
        package->addFunction(answering("f", {}, 6));
    }));
    EXPECT_NE(COSPackage::getPackage("p"), nullptr);
    EXPECT_EQ(log, "");
    EXPECT_NE(COSPackage::getPackage("p.q"), nullptr);
    EXPECT_EQ(log, "p");
    EXPECT_EQ(COSPackage::getPackage("p.none"), nullptr);
    EXPECT_EQ(COSPackage::getPackage(""), nullptr);
    EXPECT_EQ(hvm().lookUp("p.q.C"), NameKind::Class);
    EXPECT_EQ(log, "pq");
    EXPECT_EQ(hvm().lookUp("p.f"), NameKind::Function);
    EXPECT_EQ(hvm().lookUp("p"), NameKind::Package);
    for (char const* none : {"", ".", "p.", "p..q", "x", "p.q.C.x", "f"})
        EXPECT_EQ(hvm().lookUp(none), NameKind::None) << none;
    EXPECT_EQ(hvm().lookUp(std::string(200'000, '.')), NameKind::None);
    ArrayPtr const one = number(1);
    EXPECT_EQ(scalar<double>(hvm().callFunction("p.f", inputs(one))), 5);
    EXPECT_EQ(scalar<double>(hvm().callFunction("p.f")), 6);
    EXPECT_EQ(errorOf([&] { hvm().callFunction("p.g"); }), "VELMARA:function:unknown");
    velmara::PackageRecord const top = hvm().describePackage("");
    EXPECT_EQ(top.packages, (std::vector<std::string>{"p"}));
    EXPECT_EQ(hvm().describePackage("p").functions.size(), 2u);
    EXPECT_EQ(hvm().describeFunction("p.f").signature, "result = f(a: double scalar) -> double scalar");
}

TEST_F(PackageTest, NestedNamesFindOrCreateTheirParents)
{
    COSPackage::addPackage(new Package("a.b.c", [](COSPackage* package) { package->addClass(new Class("a.b.c.C")); }));
    EXPECT_EQ(hvm().describePackage("a").packages, (std::vector<std::string>{"a.b"}));
    bool isPopulated = false;
    COSPackage::addPackage(new Package("a.b", [&](COSPackage*) { isPopulated = true; }));
    EXPECT_EQ(hvm().lookUp("a.b.c.C"), NameKind::Class);
    EXPECT_TRUE(isPopulated) << "a described package replaces an implied parent";
    for (char const* refused : {"a.b", "a.b.c", "a.b.c.C"})
        EXPECT_EQ(messageIdOf([&] { COSPackage::addPackage(new Package(refused)); }), "VELMARA:package:duplicate");
    for (char const* refused : {"", ".a", "a.", "a..d"})
        EXPECT_EQ(messageIdOf([&] { COSPackage::addPackage(new Package(refused)); }), "VELMARA:package:name");
    COSPackage* const b = COSPackage::getPackage("a.b");
    EXPECT_EQ(messageIdOf([&] { b->addClass(new Class("a.C")); }), "VELMARA:class:otherPackage");
    EXPECT_EQ(messageIdOf([&] { b->addSubPackage(new Package("x.y")); }), "VELMARA:package:name");
    EXPECT_EQ(messageIdOf([&] { b->addFunction(answering("c", {}, 1)); }), "VELMARA:package:duplicate");
    b->addFunction(answering("f", {}, 1));
    EXPECT_EQ(messageIdOf([&] { b->addSubPackage(new Package("f")); }), "VELMARA:package:duplicate");
    EXPECT_EQ(scalar<double>(hvm().callFunction("a.b.f")), 1);
    COSPackage::removePackage("a.b.c");
    COSPackage::removePackage("a.b");
    EXPECT_EQ(errorOf([&] { hvm().callFunction("a.b.f"); }), "VELMARA:function:unknown");
    EXPECT_EQ(hvm().lookUp("a"), NameKind::None) << "an implied parent is removed with its content";
    COSPackage::removePackage("a");
}

TEST_F(PackageTest, FailedPopulationDropsWhatWasAddedAndIsTriedAgain)
{
    int attempts = 0;
    COSPackage::addPackage(new Package("other"));
    COSPackage::addPackage(new Package("p", [&](COSPackage* package) {
        package->addClass(new Class("p.C"));
        package->addFunction(answering("f", {}, 1));
        COSPackage::addPackage(new Package("p.q.r"));
        COSPackage::addPackage(new Package("other.x"));
        publish(new Class("Global"));
        COSPackage::addPackage(new Package("gone"));
        COSPackage::removePackage("gone");
        if (++attempts <= 3)
            throw std::runtime_error("not yet");
    }));
    COSPackage::addPackage(new Package("p.kept"));
    EXPECT_EQ(hvm().lookUp("Global"), NameKind::None) << "what fails is passed over";
    EXPECT_EQ(messageIdOf([] { COSPackage::getPackage("p.q"); }), "VELMARA:package:population");
    EXPECT_EQ(errorOf([&] { hvm().callFunction("p.f"); }), "VELMARA:package:population");
    EXPECT_EQ(orbis::COSClass::getClass("Global"), nullptr);
    EXPECT_EQ(hvm().lookUp("other.x"), NameKind::None);
    EXPECT_EQ(attempts, 3);
    EXPECT_EQ(hvm().lookUp("Global"), NameKind::Class) << "packages are populated before a name counts as unknown";
    velmara::PackageRecord const record = hvm().describePackage("p");
    EXPECT_EQ(attempts, 4);
    EXPECT_EQ(record.packages, (std::vector<std::string>{"p.kept", "p.q"}));
    EXPECT_EQ(record.classes, (std::vector<std::string>{"p.C"}));
}

TEST_F(PackageTest, RemovalDestroysObjectsBeforeTheirClassInfo)
{
    std::string log;
    struct Logged : Class {
        Logged(std::string& text) : Class("p.q.C"), log_(text) {}
        ~Logged() override { log_ += "info"; }
        std::string& log_;
    };
    COSPackage::addPackage(new Package("p.q", [&](COSPackage* package) {
        auto* const info = new Logged(log);
        info->describe = [&](orbis::COSClass* cls) {
            cls->addMethod(new Method("leave", "", {"p.q.C"}, [&](Call const&) {
                COSPackage::removePackage("p");
                log += "method ";
            }));
        };
        info->destroy = [&](COSInterface*, void*) {
            EXPECT_EQ(orbis::COSClass::getClass("p.q.C"), nullptr);
            COSPackage::removePackage("p.q"); // is being removed already
            EXPECT_EQ(messageIdOf([] { COSPackage::addPackage(new Package("p.new")); }), "VELMARA:package:closed");
            log += "object ";
        };
        package->addClass(info);
    }));
    COSPackage::addPackage(new Package("p"));
    ArrayPtr const object = hvm().construct("p.q.C");
    orbis::COSDataTypePtr const type("p.q.C");
    EXPECT_NE(static_cast<orbis::COSDataType*>(type), nullptr);
    hvm().call(object.get(), "leave"); // removes the very method that is running
    EXPECT_EQ(log, "object method info") << "what runs is destroyed when it has returned";
    EXPECT_EQ(errorOf([&] { hvm().call(object.get(), "leave"); }), "VELMARA:object:invalid");
    EXPECT_EQ(errorOf([&] { hvm().construct("p.q.C"); }), "VELMARA:class:unknown");
    EXPECT_EQ(static_cast<orbis::COSDataType*>(orbis::COSDataTypePtr("p.q.C")), nullptr);
    EXPECT_STREQ(type->scalarTypeName(), "p.q.C") << "a handle keeps its data type";
}

TEST_F(PackageTest, NothingIsRemovedWhileItIsDescribed)
{
    std::string ids;
    auto const tryToRemove = [&ids] { ids += messageIdOf([] { COSPackage::removePackage("p"); }) + " "; };
    COSPackage::addPackage(new Package("p", [&](COSPackage* package) {
        tryToRemove();
        package->addClass(new Class("p.C", [&](orbis::COSClass*) { tryToRemove(); }));
    }));
    hvm().describeClass("p.C");
    EXPECT_EQ(ids, "VELMARA:package:busy VELMARA:package:busy ");
}

TEST_F(PackageTest, MissingClassesAreAskedForByName)
{
    auto* const info = new Package("p");
    std::string asked;
    info->loadClass = [&](std::string const& name) {
        asked += name + " ";
        if (name != "Late")
            return false;
        COSPackage::getPackage("p")->addClass(new Class("p.Late"));
        return true;
    };
    COSPackage::addPackage(info);
    EXPECT_EQ(hvm().lookUp("p.Late"), NameKind::Class);
    EXPECT_EQ(hvm().lookUp("p.Late"), NameKind::Class);
    EXPECT_EQ(hvm().lookUp("p.Never"), NameKind::None);
    EXPECT_EQ(asked, "Late Never ");
}
