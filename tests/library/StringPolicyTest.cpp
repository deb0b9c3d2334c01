#include "HvmTest.hpp"
#include "host/messageIdOf.hpp"
#include "library/publishClass.hpp"
#include "library/texts.hpp"

#include "orbis/factory/Exception.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

using StringPolicyTest = HvmTest;

/// What a native function is given for an array.
template <class T>
auto given(hvArray* in)
{
    detail::Argument<T> argument{COSValue(in)};
    if constexpr (std::is_pointer_v<T>)
        return std::basic_string<std::remove_cv_t<std::remove_pointer_t<T>>>(argument.get());
    else
        return std::remove_cvref_t<T>(argument.get());
}

/// What the host is given for a native result.
template <class T>
ArrayPtr handedOut(T value)
{
    COSValue out;
    int count = 0;
    detail::storeResult<T>(count, &out, [&]() -> T { return static_cast<T>(value); });
    return ArrayPtr(out.array());
}

TEST_F(StringPolicyTest, GeneratedTextCrossesBothWays)
{
    std::vector<std::u16string> inputs = {u"", std::u16string(u"\u00E9\u00E9\0a", 4), u"twelve chars", u"\xD800x"};
    std::mt19937 random(7);
    for (int i = 0; i < 500; ++i)
        inputs.push_back(anyText(random));
    for (std::u16string const& text : inputs) {
        std::string const utf8 = fl::i18n::to_string(text), shorter = upToZero(utf8);
        std::u16string const shorter16 = upToZero(text);
        ArrayPtr const array = characters(text), string = strings({text});
        for (hvArray* const in : {array.get(), string.get()}) {
            EXPECT_EQ(given<std::string>(in), utf8);
            EXPECT_EQ(given<std::string const&>(in), utf8);
            EXPECT_EQ(given<std::string&&>(in), utf8);
            EXPECT_EQ(given<char const*>(in), shorter);
            EXPECT_EQ(given<fl::ustring const&>(in), text);
            EXPECT_EQ(given<char16_t const*>(in), shorter16);
            EXPECT_EQ(given<char>(in), *utf8.c_str());
        }
        std::u16string const back = fl::i18n::to_ustring(shorter);
        EXPECT_EQ(textOf(handedOut<std::string const&>(utf8)), back);
        EXPECT_EQ(textOf(handedOut<char const*>(utf8.c_str())), back);
        EXPECT_EQ(textOf(handedOut(text)), shorter16);
        EXPECT_EQ(textOf(handedOut<char16_t const*>(text.c_str())), shorter16);
        char const first = *utf8.c_str();
        EXPECT_EQ(textOf(handedOut(first)), fl::i18n::to_ustring(std::string(first != 0, first)));
        EXPECT_EQ(textOf(array), text) << "the input stays as it was";
    }
    EXPECT_EQ(textOf(handedOut<char*>(nullptr)) + textOf(handedOut<char16_t const*>(nullptr)), u"");
}

TEST_F(StringPolicyTest, WhatIsNoTextIsRefused)
{
    constexpr char const* requireString = "VELMARA:class:RequireString";
    std::pair<ArrayPtr, char const*> const cases[] = {{number(1), requireString},
                                                      {cells({nullptr}), requireString},
                                                      {strings({u"a", u"b"}), requireString},
                                                      {strings({{}}), "VELMARA:string:MissingNotSupported"},
                                                      {nullptr, ""}};
    for (auto const& [array, id] : cases) {
        hvArray* const in = array.get();
        EXPECT_EQ(messageIdOf([in] { EXPECT_EQ(given<std::string>(in), ""); }), id);
        EXPECT_EQ(messageIdOf([in] { EXPECT_EQ(given<fl::ustring>(in), u""); }), id);
        EXPECT_EQ(messageIdOf([in] { EXPECT_EQ(detail::Argument<char*>(COSValue(in)).get(), nullptr); }), id);
        EXPECT_EQ(messageIdOf([in] { EXPECT_EQ(detail::Argument<char16_t*>(COSValue(in)).get(), nullptr); }), id);
        EXPECT_EQ(messageIdOf([in] { EXPECT_EQ(given<char>(in), '\0'); }), id);
    }
}

class Label {
public:
    explicit Label(std::string name) : name_(std::move(name)) {}
    virtual ~Label() = default;
    char const* tag() const { return name_.c_str(); }
    std::string const& name() const { return name_; }
    void setName(std::string const& name)
    {
        if (name.empty())
            throw Exception("a name is needed");
        name_ = name;
    }
    fl::ustring title() const { return title_; }
    void setTitle(fl::ustring title) { title_ = std::move(title); }
    char swap(char16_t const*, char c) { return c; }

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

TEST_F(StringPolicyTest, MembersOfEveryKindCarryStrings)
{
    publishClass<Label>([](ClassDescriber<Label>& label) {
        label.constructor<std::string>("name")
            .method("tag", &Label::tag)
            .method("swap", &Label::swap)
            .property("name", &Label::name, &Label::setName)
            .property("title", &Label::title, &Label::setTitle);
    });
    ArrayPtr const label = hvm().construct("tests.Label", inputs(characters(u"one")));
    EXPECT_EQ(textOf(hvm().call(label.get(), "tag")), u"one");
    hvm().set(label.get(), "name", strings({u"two"}).get());
    hvm().set(label.get(), "title", strings({u"\xD800"}).get());
    EXPECT_EQ(errorOf([&] { hvm().set(label.get(), "name", characters(u"").get()); }), "VELMARA:native:exception");
    EXPECT_EQ(errorOf([&] { hvm().set(label.get(), "title", number(1).get()); }), "VELMARA:property:value");
    EXPECT_EQ(textOf(hvm().get(label.get(), "name")), u"two");
    EXPECT_EQ(textOf(hvm().get(label.get(), "title")), u"\xD800");

    std::string types;
    auto const record = hvm().describeClass("tests.Label");
    for (auto const& method : record.methods)
        for (auto const& parameter : method.inputs)
            types += parameter.dataType + ", ";
    for (auto const& property : record.properties)
        types += property.dataType + ", ";
    EXPECT_EQ(types, "char vector, tests.Label, tests.Label, char, char, char vector, OrbisFactoryString scalar, ");
}

} // namespace
