#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"
#include "library/texts.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <limits>

using namespace orbis::host_extensions;
using orbis::COSClass;
using orbis::COSInterfacePtr;
using texts::strings;
constexpr auto text = texts::characters;
using velmara::ArrayPtr;

namespace {

struct Enumeration final : described::Class {
    using Class::Class;
    bool isEnumeration() const override { return true; }
};

void addColors(COSClass* cls)
{
    addEnumerator(cls, "Red", 1);
    addEnumerator(cls, "Grün", -5);
    addEnumerator(cls, "Crimson", 1);
    addEnumerator(cls, "Blue", std::int64_t(1) << 40);
}

/// The names of the enumerators that a call is given.
void giveNames(described::Call const& call)
{
    std::string names = orbis::omIsORBIS(call.inputs[0].array()) ? "" : "no objects";
    hvArray_tag const* const array = call.inputs[0].array();
    for (std::size_t i = 0; i < array->get_number_of_elements(); ++i)
        names += std::string(describeEnumerator(orbis::omGetArrayElement(array, i))->name) + ' ';
    call.give(orbis::COSValue(hvCreateString(names.c_str())));
}

/// Package "t" with the enumeration "t.Color", functions that name what they are given, and overloads that name
/// the type that was chosen.
class EnumerationTest : public HvmTest {
protected:
    EnumerationTest() { publish("t"); }

    static void publish(char const* name)
    {
        orbis::COSPackage::addPackage(new described::Package(name, [name](orbis::COSPackage* package) {
            package->addFunction(new described::Method("one", "char", {"t.Color"}, giveNames));
            package->addFunction(new described::Method("many", "char", {"t.Color vector"}, giveNames));
            for (char const* type : {"t.Color", "t.Color vector", "double scalar", "any"})
                package->addFunction(
                    new described::Method("chosen", "char", {type}, [type](described::Call const& call) {
                        call.give(orbis::COSValue(hvCreateString(type)));
                    }));
            package->addClass(new Enumeration(std::string(name) + ".Color", addColors));
            package->addClass(new described::Class(std::string(name) + ".Other"));
        }));
    }

    static ArrayPtr doubles(std::vector<double> const& values) { return matrix(1, values.size(), values); }
    static ArrayPtr nothing() { return ArrayPtr(createMatrix(0, 0, hvDOUBLE_CLASS)); }

    template <class... A>
    static ArrayPtr cells(A const&... contents)
    {
        return texts::cells({contents.get()...});
    }

    static ArrayPtr objects(std::vector<char const*> const& names, char const* className = "t.Color")
    {
        ArrayPtr array(orbis::omCreateORBISMatrix(1, names.size(), className));
        for (std::size_t i = 0; i < names.size(); ++i)
            if (names[i])
                orbis::omSetArrayElement(array.get(), i, getEnumerator(className, names[i]));
        return array;
    }

    /// What the function gives for the input, or why it refuses it.
    std::string answer(char const* function, ArrayPtr const& input)
    {
        try {
            char* const given = hvArrayToString(hvm().callFunction(function, inputs(input)).get());
            std::string const answer = given ? given : "";
            hvFreeEx(given);
            return answer;
        } catch (velmara::Error const& error) {
            std::string const text = error.what();
            std::size_t const reason = text.find(": a: ");
            return reason == text.npos ? text : text.substr(reason + 5);
        }
    }
};

std::string const refusal = "needs one of Red, Grün, Crimson, Blue, not ";

} // namespace

TEST_F(EnumerationTest, ObjectsTextAndNumbersMeanEnumerators)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    std::string const first = "element 0 (counted from 0): " + refusal,
                      second = "element 1 (counted from 0): " + refusal;
    // As one and as many; both are the same where the latter is empty.
    std::tuple<ArrayPtr, std::string, std::string> const cases[] = {
        {objects({"Crimson"}), "Red ", ""},
        {text(u"Grün"), "Grün ", ""},
        {strings({u"Crimson"}), "Red ", ""},
        {matrix<std::int8_t>(1, 1, {-5}), "Grün ", ""},
        {matrix<std::uint64_t>(1, 1, {std::uint64_t(1) << 40}), "Blue ", ""},
        {matrix<float>(1, 1, {-5}), "Grün ", ""},
        {text(u"Re"), refusal + "'Re'", ""},
        {text(u"a name that is longer than any"), refusal + "'a name that is longer than any'", ""},
        {strings({u"Purple"}), refusal + "'Purple'", first + "'Purple'"},
        {strings({{}}), refusal + "a missing string", first + "a missing string"},
        {doubles({1e19}), refusal + "1e+19", first + "1e+19"},
        {doubles({nan}), refusal + "NaN", first + "NaN"},
        {matrix<std::uint64_t>(1, 1, {std::uint64_t(-5)}), refusal + "18446744073709551611",
         first + "18446744073709551611"},
        {objects({"Red", "Blue"}), refusal + "t.Color 1-by-2", "Red Blue "},
        {objects({}), refusal + "t.Color 1-by-0", " "},
        {objects({nullptr}), refusal + "a null object", ""},
        {objects({"Red", nullptr}), refusal + "t.Color 1-by-2", ""},
        {objects({nullptr}, "t.Other"), refusal + "a null object", ""},
        {nothing(), refusal + "[]", " "},
        {doubles({1, -5}), refusal + "double 1-by-2", "Red Grün "},
        {doubles({1, 2}), refusal + "double 1-by-2", second + "2"},
        {strings({u"Red", {}}), refusal + "string 1-by-2", second + "a missing string"},
        {cells(text(u"Blue"), objects({"Red"}), doubles({1}), strings({u"Crimson"})), refusal + "cell 1-by-4",
         "Blue Red Red Red "},
        {cells(cells(text(u"Red"))), refusal + "cell 1-by-1", first + "cell 1-by-1"},
        {cells(objects({"Red", "Blue"})), refusal + "cell 1-by-1", first + "t.Color 1-by-2"},
        {cells(objects({nullptr})), refusal + "cell 1-by-1", first + "a null object"},
    };
    for (auto const& [input, one, many] : cases) {
        EXPECT_EQ(answer("t.one", input), one);
        EXPECT_EQ(answer("t.many", input) + (many == " " ? " " : ""), many.empty() ? one : many) << one;
    }
}

TEST_F(EnumerationTest, TheBestOverloadIsChosen)
{
    using Case = std::pair<ArrayPtr, char const*>;
    for (auto const& [input, chosen] :
         {Case{objects({"Red"}), "t.Color"}, Case{objects({"Red", "Red"}), "t.Color vector"},
          Case{text(u"Red"), "t.Color"}, Case{text(u"Purple"), "any"}, Case{doubles({1}), "double scalar"},
          Case{matrix<std::int8_t>(1, 1, {9}), "double scalar"}, Case{strings({u"Red"}), "t.Color"},
          Case{strings({u"Red", u"Blue"}), "t.Color vector"}, Case{cells(text(u"Red")), "t.Color vector"},
          Case{objects({}), "t.Color vector"}})
        EXPECT_EQ(answer("t.chosen", input), chosen);
}

TEST_F(EnumerationTest, OneObjectForEachEnumeratorAndMachine)
{
    COSInterfacePtr const red = getEnumerator("t.Color", "Red");
    ArrayPtr const again = hvm().getEnumerator("t.Color", "Crimson");
    EXPECT_EQ(objectIn(again), static_cast<orbis::COSInterface*>(red));
    EXPECT_NE(getEnumerator("t.Color", "Blue"), static_cast<orbis::COSInterface*>(red));
    EXPECT_EQ(getEnumerator("t.Color", "Purple"), nullptr);
    EXPECT_EQ(getEnumerator("t.Other", "Red"), nullptr);
    EXPECT_EQ(getEnumerator("t.None", "Red"), nullptr);
    EXPECT_EQ(errorOf([&] { hvm().getEnumerator("t.Color", "Purple"); }), "VELMARA:enumeration:unknown");
    EXPECT_EQ(errorOf([&] { hvm().getEnumerator("t.Other", "Red"); }), "VELMARA:enumeration:notEnumeration");
    EXPECT_EQ(describeEnumerator(nullptr), nullptr);
    ArrayPtr const other = hvm().construct("t.Other");
    EXPECT_EQ(describeEnumerator(objectIn(other)), nullptr);
    Enumerator const& blue = *describeEnumerator(getEnumerator("t.Color", "Blue"));
    EXPECT_EQ(std::pair(blue.value, blue.position), std::pair(std::int64_t(1) << 40, std::size_t(3)));

    velmara::Hvm second;
    ArrayPtr foreign;
    {
        velmara::Hvm::Scope const scope(second);
        publish("t");
        foreign = second.getEnumerator("t.Color", "Red");
        EXPECT_FALSE(velmara::isSameObject(foreign.get(), again.get()));
    }
    EXPECT_EQ(answer("t.many", cells(foreign)), "element 0 (counted from 0): " + refusal + "t.Color 1-by-1");
    EXPECT_EQ(errorOf([&] { hvm().callFunction("t.one", inputs(foreign)); }), "VELMARA:object:otherVirtualMachine");
}

TEST_F(EnumerationTest, EnumeratorsAreDestroyedWithTheirClass)
{
    COSInterfacePtr const red = getEnumerator("t.Color", "Red");
    ArrayPtr const held = hvm().getEnumerator("t.Color", "Red");
    orbis::COSPackage::removePackage("t");
    EXPECT_FALSE(velmara::isValid(held.get()));
    EXPECT_EQ(describeEnumerator(red), nullptr);
    publish("t");
    EXPECT_EQ(answer("t.one", text(u"Red")), "Red ");
    EXPECT_EQ(errorOf([&] { hvm().callFunction("t.one", inputs(held)); }), "VELMARA:object:invalid");
    COSInterfacePtr const last = getEnumerator("t.Color", "Red");
    endHvm();
    EXPECT_EQ(describeEnumerator(last), nullptr);
}

TEST_F(EnumerationTest, WrongDescriptionsAreRefused)
{
    std::pair<char const*, std::function<void(COSClass*)>> const cases[] = {
        {"described: Enumeration \"Bad\" has no enumerators", [](COSClass*) {}},
        {"An enumerator of \"Bad\" needs a name", [](COSClass* cls) { addEnumerator(cls, "", 1); }},
        {"An enumerator of \"Bad\" needs a name", [](COSClass* cls) { addEnumerator(cls, nullptr, 1); }},
        {"has an enumerator \"Blue\" already", [](COSClass* cls) { addColors(cls), addEnumerator(cls, "Blue", 9); }},
        {"cannot have superclasses", [](COSClass* cls) { addColors(cls), described::setSuperclass(cls, "t.Other"); }},
        {"has a member \"Red\" already",
         [](COSClass* cls) { addColors(cls), cls->addMethod(described::answering("Red", {"x.Bad"}, 1)); }},
        {"has a member \"Red\" already",
         [](COSClass* cls) { cls->addMethod(described::answering("Red", {"x.Bad"}, 1)), addColors(cls); }},
        {"cannot have more than 65535 values",
         [](COSClass* cls) {
             for (int i = 0; i <= 0xFFFF; ++i)
                 addEnumerator(cls, ("e" + std::to_string(i)).c_str(), i);
         }},
    };
    for (auto const& [reason, describe] : cases) {
        velmara::Hvm machine;
        velmara::Hvm::Scope const scope(machine);
        publish("t");
        COSClass::addGlobalClass(new Enumeration("Bad", describe));
        expectMessage([&] { machine.describeClass("Bad"); }, {reason});
    }
    described::publish(new described::Class("Plain", addColors));
    described::publish(new described::Class("Shade", [](COSClass* cls) { described::setSuperclass(cls, "t.Color"); }));
    for (auto const& [name, reason] : {std::pair("Plain", "is no enumeration"), std::pair("Shade", "which is sealed")})
        expectMessage([&, name = name] { hvm().describeClass(name); }, {reason});
    EXPECT_ANY_THROW(addEnumerator(COSClass::getClass("t.Color"), "Late", 5));
    EXPECT_ANY_THROW(addEnumerator(nullptr, "None", 5));
    EXPECT_ANY_THROW(COSClass::getClass("t.Color")->newInstance());
}

TEST_F(EnumerationTest, ResultsAreEnumerators)
{
    orbis::COSPackage::addPackage(new described::Package("r", [](orbis::COSPackage* package) {
        auto const add = [package](char const* name, std::function<ArrayPtr()> const& make) {
            package->addFunction(new described::Method(name, "t.Color", {}, [make](described::Call const& call) {
                call.give(orbis::COSValue(make().release()));
            }));
        };
        add("right", [] { return objects({"Blue"}); });
        add("none", [] { return objects({nullptr}); });
        add("nothing", [] { return nothing(); });
        add("two", [] { return objects({"Red", "Red"}); });
        add("text", [] { return text(u"Red"); });
    }));
    EXPECT_TRUE(velmara::isSameObject(hvm().callFunction("r.right").get(), objects({"Blue"}).get()));
    for (char const* name : {"r.none", "r.nothing", "r.two", "r.text"})
        EXPECT_EQ(errorOf([&] { hvm().callFunction(name); }), "VELMARA:result:type") << name;
}

TEST_F(EnumerationTest, DefinedFromOutside)
{
    std::vector<velmara::EnumeratorRecord> const lights{{"Go", 0}, {"Stop", 1}, {"Halt", 1}};
    for (char const* name : {"a.b.Light", "t.Light", "Light"}) {
        hvm().defineEnumeration(name, lights);
        velmara::ClassRecord const listed = hvm().describeClass(name);
        EXPECT_TRUE(listed.isEnumeration);
        ASSERT_EQ(listed.enumerators.size(), 3u);
        EXPECT_EQ(listed.enumerators[2].name + std::to_string(listed.enumerators[2].value), "Halt1");
        EXPECT_EQ(errorOf([&] { hvm().defineEnumeration(name, lights); }), "VELMARA:package:duplicate");
    }
    EXPECT_FALSE(hvm().describeClass("t.Other").isEnumeration);
    for (char const* name : {"c.d.Empty", "Empty", "t.Empty"}) {
        EXPECT_EQ(errorOf([&] { hvm().defineEnumeration(name, {}); }), "VELMARA:class:initialization");
        EXPECT_EQ(hvm().lookUp(name), velmara::NameKind::None);
    }
    EXPECT_EQ(hvm().lookUp("c"), velmara::NameKind::None);
    EXPECT_EQ(errorOf([&] { hvm().defineEnumeration("a..Light", lights); }), "VELMARA:package:name");
    EXPECT_EQ(answer("t.one", text(u"Red")), "Red ");
}
