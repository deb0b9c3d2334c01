#include "library/FunctionsTest.hpp"
#include "library/texts.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

using StringPolicyTest = FunctionsTest;

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
    std::vector<std::u16string> inputs = {u"",
                                          std::u16string(u"\u00E9\u00E9\0a", 4),
                                          u"twelve chars",
                                          u"\xD800x",
                                          // as long in bytes up to the zero as in characters with it
                                          {u"\u00E9 and twelve\0", 13},
                                          {u"twelve and \u00E9\0", 13}};
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

TEST_F(StringPolicyTest, EachTypeHasItsDataType)
{
    publishFunctions(
        describeFunctions().function("f", [](std::string const&, char const*, char16_t const*, char, fl::ustring) {}));
    std::string types;
    for (auto const& input : hvm().describeFunction("tests.f").inputs)
        types += input.dataType + ", ";
    EXPECT_EQ(types, "char vector, char, char, char, OrbisFactoryString scalar, ");
}

} // namespace
