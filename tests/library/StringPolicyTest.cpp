#include "HvmTest.hpp"
#include "host/messageIdOf.hpp"
#include "library/texts.hpp"

#include "orbis/factory/Exception.hpp"
#include "orbis/factory/HandleClassInfo.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

std::string seen;
fl::ustring seenUtf16;

struct Label {
    explicit Label(std::string name) : name_(std::move(name)) {}
    virtual ~Label() = default;
    std::string const& name() const { return name_; }
    void setName(std::string const& name) { name_ = name; }
    fl::ustring title() const { return title_; }
    void setTitle(fl::ustring title)
    {
        if (title.empty())
            throw Exception("a title is needed");
        title_ = std::move(title);
    }
    char const* tag() const { return name_.empty() ? nullptr : name_.c_str(); }

private:
    std::string name_;
    fl::ustring title_;
};

} // namespace

template <>
struct orbis::factory::HostClass<Label> {
    static constexpr char const* name = "tests.Label";
};

namespace {

class LabelInfo final : public HandleClassInfo<Label, 1> {
public:
    LabelInfo() : HandleClassInfo("tests.Label", "") {}
    void initializeClass(COSClass* cls) override
    {
        publish(cls, describe<Label>()
                         .constructor<std::string>("name")
                         .method("tag", &Label::tag)
                         .property("name", &Label::name, &Label::setName)
                         .property("title", &Label::title, &Label::setTitle));
    }
};

class StringPolicyTest : public HvmTest {
protected:
    StringPolicyTest()
    {
        registerOrbisPackage("tests", [](COSPackage* package) {
            package->addClass(new LabelInfo);
            publish(package, describeFunctions()
                                 .function("string", [](std::string text) { return seen = std::move(text); })
                                 .function("reference",
                                           [](std::string const& text) -> std::string const& { return seen = text; })
                                 .function("moved", [](std::string&& text) { return seen = std::move(text); })
                                 .function("pointer",
                                           [](char const* text) {
                                               seen = text;
                                               return text;
                                           })
                                 .function("buffer",
                                           [](char* text) {
                                               seen = text;
                                               return text;
                                           })
                                 .function("utf16", [](fl::ustring text) { return seenUtf16 = std::move(text); })
                                 .function("utf16Pointer",
                                           [](char16_t const* text) {
                                               seenUtf16 = text;
                                               return text;
                                           })
                                 .function("character", [](char c) { return c; })
                                 .function("two", [](std::string const&, std::string const&, char const*) {})
                                 .function("null", []() -> char const* { return nullptr; })
                                 .function("nullUtf16", []() -> char16_t* { return nullptr; }));
        });
    }

    ArrayPtr call(char const* function, std::initializer_list<hvArray*> inputs = {})
    {
        return hvm().callFunction(std::string("tests.") + function, std::vector<hvArray*>(inputs));
    }
};

TEST_F(StringPolicyTest, GeneratedTextCrossesBothWays)
{
    struct Case {
        char const* function;
        bool isUtf16;
        bool endsAtZero; ///< on its way in; results always do
    };
    constexpr Case cases[] = {{"string", false, false},    {"reference", false, false}, {"moved", false, false},
                              {"pointer", false, true},    {"buffer", false, true},     {"utf16", true, false},
                              {"utf16Pointer", true, true}};
    std::vector<std::u16string> inputs = {u"",
                                          std::u16string(u"a\0b", 3),
                                          std::u16string(u"éé\0a", 4),
                                          std::u16string(u"\0", 1),
                                          u"twelve chars",
                                          u"\xD800",
                                          u"\U0001F600"};
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i)
        inputs.push_back(anyText(random));
    for (auto const& [function, isUtf16, endsAtZero] : cases) {
        for (std::u16string const& input : inputs) {
            ArrayPtr const array = characters(input);
            ArrayPtr const result = call(function, {array.get()});
            std::u16string const given = endsAtZero ? upToZero(input) : input;
            if (isUtf16)
                EXPECT_EQ(seenUtf16, given) << function;
            else
                EXPECT_EQ(seen, fl::i18n::to_string(given)) << function;
            std::u16string const back = isUtf16 ? input : fl::i18n::to_ustring(fl::i18n::to_string(input));
            EXPECT_EQ(textOf(result.get()), upToZero(back)) << function;
            EXPECT_EQ(textOf(array.get()), input) << "the input stays as it was";
        }
    }
}

TEST_F(StringPolicyTest, HostStringsAreTextToo)
{
    for (std::u16string const& text : {std::u16string(u"ab\0c", 4), std::u16string(u"é\U0001F600"), std::u16string()}) {
        ArrayPtr const string = strings({text});
        hvArray* const in = string.get();
        EXPECT_EQ(Marshaler<StringPolicy>::fromHost<std::string>(in).value(), fl::i18n::to_string(text));
        EXPECT_EQ(Marshaler<UnicodeStringPolicy>::fromHost<fl::ustring>(in).value(), text);
        EXPECT_EQ(Marshaler<CharPtrPolicy>::fromHost<char*>(in).value(), fl::i18n::to_string(upToZero(text)));
        EXPECT_EQ(Marshaler<UnicodeCharPtrPolicy>::fromHost<char16_t*>(in).value(), upToZero(text));
        EXPECT_EQ(Marshaler<CharPolicy>::fromHost<char>(in), fl::i18n::to_string(text).c_str()[0]);
    }
}

TEST_F(StringPolicyTest, WhatIsNoTextIsRefused)
{
    ArrayPtr const number = numbers(1), missing = strings({{}}), two = strings({u"a", u"b"}), cell = cells({nullptr});
    constexpr char const* require = "VELMARA:class:RequireString";
    std::pair<hvArray*, char const*> const refused[] = {
        {number.get(), require},
        {cell.get(), require},
        {two.get(), require},
        {missing.get(), "VELMARA:string:MissingNotSupported"},
    };
    for (auto const& [array, id] : refused) {
        hvArray* const in = array;
        EXPECT_EQ(messageIdOf([&] { Marshaler<StringPolicy>::fromHost<std::string>(in); }), id);
        EXPECT_EQ(messageIdOf([&] { Marshaler<UnicodeStringPolicy>::fromHost<fl::ustring>(in); }), id);
        EXPECT_EQ(messageIdOf([&] { Marshaler<CharPtrPolicy>::fromHost<char*>(in); }), id);
        EXPECT_EQ(messageIdOf([&] { Marshaler<UnicodeCharPtrPolicy>::fromHost<char16_t*>(in); }), id);
        EXPECT_EQ(messageIdOf([&] { Marshaler<CharPolicy>::fromHost<char>(in); }), id);
        for (char const* const function : {"string", "pointer", "utf16", "character"})
            EXPECT_EQ(errorOf([&] { call(function, {in}); }), "VELMARA:dispatch:noMatch") << function;
    }
    EXPECT_EQ(Marshaler<StringPolicy>::fromHost<std::string>(nullptr).value(), "");
    EXPECT_EQ(Marshaler<UnicodeStringPolicy>::fromHost<fl::ustring>(nullptr).value(), u"");
    EXPECT_EQ(Marshaler<CharPtrPolicy>::fromHost<char*>(nullptr).value(), nullptr);
    EXPECT_EQ(Marshaler<UnicodeCharPtrPolicy>::fromHost<char16_t*>(nullptr).value(), nullptr);
    EXPECT_EQ(Marshaler<CharPolicy>::fromHost<char>(nullptr), '\0');
}

TEST_F(StringPolicyTest, CharactersAreFirstBytes)
{
    std::pair<std::u16string, std::u16string> const cases[] = {
        {u"x", u"x"}, {u"xyz", u"x"}, {u"", u""}, {std::u16string(1, u'\0'), u""}, {u"\u00E9", u"\uFFFD"}};
    for (auto const& [given, back] : cases)
        EXPECT_EQ(textOf(call("character", {characters(given).get()}).get()), back);
    hvArray* out = nullptr;
    Marshaler<CharPolicy>::toHost<char>('\0', &out);
    ArrayPtr const empty(out);
    EXPECT_EQ(empty->get_number_of_elements(), 0u);
    EXPECT_EQ(Marshaler<CharPolicy>::fromHost<char>(characters(u"\u00E9").get()), '\xC3');
}

TEST_F(StringPolicyTest, NullResultsAreEmptyTexts)
{
    for (char const* const function : {"null", "nullUtf16"})
        EXPECT_EQ(textOf(call(function).get()), u"") << function;
}

TEST_F(StringPolicyTest, ConstructorsAndPropertiesCarryStrings)
{
    ArrayPtr const name = characters(u"one");
    hvArray* const inputs[] = {name.get()};
    ArrayPtr const label = hvm().construct("tests.Label", inputs);
    EXPECT_EQ(textOf(hvm().get(label.get(), "name").get()), u"one");
    EXPECT_EQ(textOf(hvm().call(label.get(), "tag").get()), u"one");
    hvm().set(label.get(), "name", characters(u"").get());
    EXPECT_EQ(textOf(hvm().call(label.get(), "tag").get()), u"");
    hvm().set(label.get(), "title", strings({u"\U0001F600"}).get());
    EXPECT_EQ(errorOf([&] { hvm().set(label.get(), "title", characters(u"").get()); }), "VELMARA:native:exception");
    EXPECT_EQ(errorOf([&] { hvm().set(label.get(), "title", numbers(1).get()); }), "VELMARA:property:value");
    EXPECT_EQ(textOf(hvm().get(label.get(), "title").get()), u"\U0001F600");
}

TEST_F(StringPolicyTest, SignaturesNameTheDataTypes)
{
    struct Case {
        char const* function;
        char const* type;
    };
    for (auto const& [function, type] :
         {Case{"string", "char vector"}, Case{"pointer", "char"}, Case{"buffer", "char"},
          Case{"utf16", "OrbisFactoryString scalar"}, Case{"utf16Pointer", "char"}, Case{"character", "char"}}) {
        auto const record = hvm().describeFunction(std::string("tests.") + function);
        EXPECT_EQ(record.inputs.at(0).dataType, type) << function;
        EXPECT_EQ(record.outputs.at(0).dataType, type) << function;
    }
    EXPECT_EQ(Marshaler<StringPolicy>::dataTypeName<std::string>(), COSNameID("char vector"));
}

} // namespace
