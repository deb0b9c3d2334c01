#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <stdexcept>

using namespace described;
using velmara::ArrayPtr;

namespace {

/// A class "P" with properties of every kind. Values that were read and not released are counted.
class PropertyTest : public HvmTest {
protected:
    void publishProperties()
    {
        publish(new Class("P", [this](orbis::COSClass* cls) {
            auto const add = [&](auto... how) { cls->addProperty(make(how...)); };
            auto const value = [this] { return COSValue(value_); };
            auto const fail = []() -> COSValue { throw std::runtime_error("no"); };
            auto const text = [] { return COSValue(hvCreateString("text")); };
            add("size", "int32 scalar", value, true);
            add("readOnly", "char vector", text, false);
            add("writeOnly", "int32 scalar", nullptr, true);
            add("shared", "int32 scalar", value, true, true);
            add("lies", "double scalar", text, false);
            add("unknown", "no.such.Class", value, false);
            add("fails", "double scalar", fail, false);
        }));
    }

    Property* make(char const* name, char const* type, std::function<COSValue()> get, bool isWritable,
                   bool isStatic = false)
    {
        auto* const made = new Property;
        made->name = name;
        made->type = type;
        made->is_static = isStatic;
        if (get)
            made->get = [this, get, isStatic](COSInterface* object) {
                EXPECT_EQ(object == nullptr, isStatic);
                COSValue const value = get();
                ++unreleased_;
                return value;
            };
        if (isWritable)
            made->set = [this](COSInterface*, COSValue value) { value_ = value.scalar<std::int32_t>(); };
        made->release = [this](COSInterface*, COSValue value) {
            --unreleased_;
            if (value.isArray()) {
                EXPECT_EQ(value.array()->get_number_of_elements(), 4u) << "the array is destroyed after this";
            }
        };
        return made;
    }

    std::int32_t value_ = 3;
    int unreleased_ = 0;
};

} // namespace

TEST_F(PropertyTest, ReadAndWrittenEachOnItsOwnTerms)
{
    publishProperties();
    ArrayPtr const p = hvm().construct("P"), seven = number(7);
    auto const read = [&](char const* name) { return hvm().get(p.get(), name); };
    auto const write = [&](char const* name, ArrayPtr const& value) { hvm().set(p.get(), name, value.get()); };
    write("size", seven);
    EXPECT_EQ(scalar<std::int32_t>(read("size")), 7);
    EXPECT_EQ(read("readOnly")->get_number_of_elements(), 4u);
    write("writeOnly", seven);
    using Case = std::pair<char const*, char const*>;
    for (auto const& [name, error] :
         {Case{"writeOnly", "property:writeOnly"}, Case{"lies", "result:type"}, Case{"unknown", "property:dataType"},
          Case{"fails", "native:exception"}, Case{"missing", "property:unknown"}})
        EXPECT_EQ(errorOf([&, name = name] { read(name); }), std::string("VELMARA:") + error) << name;
    EXPECT_EQ(unreleased_, 0);
    EXPECT_EQ(errorOf([&] { write("size", number(0.5)); }), "VELMARA:property:value");
    EXPECT_EQ(errorOf([&] { write("size", nullptr); }), "VELMARA:dispatch:nullInput");
    EXPECT_EQ(errorOf([&] { write("readOnly", seven); }), "VELMARA:property:readOnly");
    hvm().deleteObjects(p.get());
    EXPECT_EQ(errorOf([&] { read("size"); }), "VELMARA:object:invalid");
    EXPECT_EQ(errorOf([&] { write("size", seven); }), "VELMARA:object:invalid");
}

TEST_F(PropertyTest, StaticOnesNeedNoObject)
{
    publishProperties();
    ArrayPtr const seven = number(7), p = hvm().construct("P");
    hvm().setStatic("P", "shared", seven.get());
    EXPECT_EQ(scalar<std::int32_t>(hvm().getStatic("P", "shared")), 7);
    EXPECT_EQ(scalar<std::int32_t>(hvm().get(p.get(), "shared")), 7);
    EXPECT_EQ(errorOf([&] { hvm().getStatic("P", "size"); }), "VELMARA:property:noObject");
    velmara::ClassRecord const record = hvm().describeClass("P");
    ASSERT_EQ(record.properties.size(), 7u);
    EXPECT_EQ(record.properties[1].dataType, "char vector");
    EXPECT_EQ(record.properties[1].setAccess, orbis::MemberAccess::NoAccess);
    EXPECT_TRUE(record.properties[3].isStatic);
    EXPECT_EQ(record.properties[5].dataType, "");
}

TEST_F(PropertyTest, EachMisuseHasAnErrorOfItsOwn)
{
    using orbis::MemberAccess;
    publish(new Class("Q", [this](orbis::COSClass* cls) {
        auto const add = [&](char const* name, bool isReadable, bool isWritable, MemberAccess open, bool isAbstract) {
            auto const get = [] { return COSValue(std::int32_t{1}); };
            Property* const made =
                make(name, "int32 scalar", isReadable ? std::function<COSValue()>(get) : nullptr, isWritable);
            made->open = open;
            made->is_abstract = isAbstract;
            cls->addProperty(made);
        };
        add("private", true, true, MemberAccess::Private, false);
        add("protected", true, true, MemberAccess::Protected, false);
        add("privateReader", true, false, MemberAccess::Private, false);
        add("abstract", true, true, MemberAccess::Public, true);
        add("closed", false, false, MemberAccess::Public, false);
        add("plain", true, true, MemberAccess::Public, false);
    }));
    ArrayPtr const q = hvm().construct("Q"), value = number(1);
    using Case = std::tuple<char const*, char const*, char const*>;
    for (auto const& [name, reading, writing] :
         {Case{"private", "getAccess", "setAccess"}, Case{"protected", "getAccess", "setAccess"},
          Case{"privateReader", "getAccess", "setAccess"}, Case{"abstract", "abstract", "abstract"},
          Case{"closed", "getAccess", "setAccess"}, Case{"nothing", "unknown", "unknown"}}) {
        std::string const prefix = "VELMARA:property:";
        EXPECT_EQ(errorOf([&, member = name] { hvm().get(q.get(), member); }), prefix + reading) << name;
        EXPECT_EQ(errorOf([&, member = name] { hvm().set(q.get(), member, value.get()); }), prefix + writing) << name;
    }
    EXPECT_EQ(errorOf([&] { hvm().getStatic("Q", "plain"); }), "VELMARA:property:noObject");
    EXPECT_EQ(errorOf([&] { hvm().setStatic("Q", "plain", value.get()); }), "VELMARA:property:noObject");
    EXPECT_EQ(errorOf([&] { hvm().setStatic("None", "plain", value.get()); }), "VELMARA:class:unknown");
    EXPECT_EQ(value_, 3) << "nothing was written";
}

namespace {

// The questions in the order of their declaration; the answers alternate, so that swapped ones are noticed.
// clang-format off
#define QUESTIONS(ask)                                                                                                 \
    ask(char const*, getName, "asked") ask(char const*, getDescription, "short")                                       \
    ask(char const*, getDetailedDescription, "long") ask(COSValue, getDefaultValue, COSValue(1))                       \
    ask(orbis::COSDataTypePtr, getDataType, "double scalar") ask(Access, getMemberGetAccess, Access::Public)           \
    ask(Extended, getExtendedGetAccess, Extended::None) ask(Access, getMemberSetAccess, Access::Protected)             \
    ask(Extended, getExtendedSetAccess, Extended::None) ask(bool, isSealed, true) ask(bool, hasInternalDefault, true)  \
    ask(bool, isInitAllowed, false) ask(bool, isDefaultAllowed, true) ask(bool, isResetAllowed, false)                 \
    ask(bool, isAbstract, false) ask(bool, isTransient, true) ask(bool, isCopyAllowed, false)                          \
    ask(bool, isWarnOnCopyError, true) ask(bool, isListenerGetAllowed, false) ask(bool, isListenerSetAllowed, true)    \
    ask(bool, isInspectAllowed, false) ask(bool, isAbortSet, true) ask(bool, isVisible, false)                         \
    ask(bool, isNeverAmbiguous, true) ask(double, getPartialMatchPriority, 2.5) ask(bool, isStatic, false)             \
    ask(bool, isDependent, true) ask(bool, isGrandfathered, false) ask(bool, isWeakReference, true)                    \
    ask(bool, canContainInterfaces, false) ask(bool, isDestructible, true)
// clang-format on
#define NAME_OF(type, question, answer) #question " "
#define ANSWERED(type, question, answer)                                                                               \
    type question() const override                                                                                     \
    {                                                                                                                  \
        return questions.append(#question " "), answer;                                                                \
    }

/// Notes each question that it is asked.
struct Asked final : described::Property {
    using Access = orbis::MemberAccess;
    using Extended = orbis::ExtendedMemberAccess;
    inline static std::string questions;
    QUESTIONS(ANSWERED)
};

} // namespace

TEST_F(PropertyTest, DescriptorsAreAskedOnceInTheOrderOfTheirDeclaration)
{
    publish(new Class("R", [](orbis::COSClass* cls) { cls->addProperty(new Asked); }));
    Asked::questions.clear();
    velmara::PropertyRecord const record = hvm().describeClass("R").properties.at(0);
    EXPECT_EQ(Asked::questions, QUESTIONS(NAME_OF));
    EXPECT_EQ(record.detailedDescription, "long");
    EXPECT_EQ(record.setAccess, orbis::MemberAccess::Protected);
    EXPECT_EQ(record.partialMatchPriority, 2.5);
    EXPECT_TRUE(record.hasDefault && record.isSealed && record.hasInternalDefault && record.isDefaultAllowed &&
                record.isTransient && record.isWarnOnCopyError && record.isListenerSetAllowed && record.isAbortSet &&
                record.isNeverAmbiguous && record.isDependent && record.isWeakReference && record.isDestructible);
    EXPECT_FALSE(record.isInitAllowed || record.isResetAllowed || record.isAbstract || record.isCopyAllowed ||
                 record.isListenerGetAllowed || record.isInspectAllowed || record.isVisible || record.isStatic ||
                 record.isGrandfathered || record.canContainInterfaces);
}

TEST_F(PropertyTest, ReferencesOfAnObjectAreListed)
{
    /// Yields one object as often as it is counted.
    struct Repeated final : orbis::EnumerationImplementation<orbis::COSInterface*> {
        Repeated(orbis::COSInterface* repeated, int times) : object(repeated), left(times) {}
        bool hasMoreElements() const override { return left > 0; }
        orbis::COSInterface* nextElement() override { return --left == 0 ? nullptr : object; }
        orbis::COSInterface* object;
        int left;
    };
    orbis::COSInterface* target = nullptr;
    publish(new Class("S", [&](orbis::COSClass* cls) {
        auto const add = [&](char const* name, bool isReadable, orbis::MemberAccess open) {
            Property* const made =
                make(name, "S", isReadable ? std::function<COSValue()>([] { return COSValue(); }) : nullptr, true);
            made->open = open;
            made->interfaces = [&target] { return orbis::Enumeration<orbis::COSInterface*>(new Repeated(target, 3)); };
            cls->addProperty(made);
        };
        add("second", true, orbis::MemberAccess::Public);
        add("first", true, orbis::MemberAccess::Public);
        add("writeOnly", false, orbis::MemberAccess::Public);
        add("private", true, orbis::MemberAccess::Private);
    }));
    ArrayPtr const s = hvm().construct("S"), other = hvm().construct("S");
    target = objectIn(other);
    auto const references = hvm().references(s.get());
    ASSERT_EQ(references.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(references[i].property, i < 2 ? "first" : "second");
        EXPECT_TRUE(velmara::isSameObject(references[i].object.get(), other.get()));
    }
}
