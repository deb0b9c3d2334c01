#include "HvmTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/OptionalPolicy.hpp"
#include "orbis/factory/StringViewPolicy.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"
#include "orbis/factory/stringVectors.hpp"

#include "libkwfl/IMsgIDException.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

using Strings = std::vector<std::string>;

class StringVectorTest : public HvmTest {
protected:
    StringVectorTest()
    {
        registerOrbisPackage("tests", [](COSPackage* package) {
            publish(package, describeFunctions()
                                 .function("vector", [](Strings const& strings) { return strings; })
                                 .function("maybe", [](std::optional<Strings> strings) { return strings.has_value(); })
                                 .function("view", [](std::string_view text) { return text; })
                                 .function("wide", [](std::u16string_view text) { return text.substr(1); })
                                 .function("length", [](std::string_view text) { return double(text.size()); })
                                 .function("maybeView", [](std::optional<std::string_view> const& text) {
                                     return text ? std::string(*text) : std::string("none");
                                 }));
        });
    }

    ArrayPtr call(char const* function, ArrayPtr const& input)
    {
        return hvm().callFunction(std::string("tests.") + function, inputs(input));
    }

    std::string callText(char const* function, ArrayPtr const& input)
    {
        return fl::i18n::to_string(textOf(call(function, input).get()));
    }
};

} // namespace

TEST_F(StringVectorTest, GeneratedTextsCrossWhole)
{
    std::mt19937 random(5);
    std::vector<std::u16string> const special = {u"Gr\u00FC\u00DFe", u"\u0080", u"twelve chars", u"abcd\u0100"};
    for (std::size_t const count : {0u, 1u, 3u, 200u}) {
        ArrayPtr const cellArray(hvCreateCellMatrix(1, count)), stringArray(additions::createStringMatrix(count, 1));
        std::vector<std::u16string> expected;
        for (std::size_t i = 0; i < count; ++i) {
            std::u16string const text = i < special.size() ? special[i] : anyText(random);
            expected.push_back(fl::i18n::to_ustring(fl::i18n::to_string(text))); // ill-formed parts are replaced
            hvSetCell(cellArray.get(), i, characters(text).release());
            additions::setString(stringArray.get(), i, text);
        }
        for (ArrayPtr const& input : {std::ref(cellArray), std::ref(stringArray)}) {
            ArrayPtr const column = call("vector", input);
            ASSERT_EQ(velmara::className(column.get()), "cell");
            ASSERT_EQ(column->get_dimensions()[0], count);
            ASSERT_EQ(column->get_dimensions()[1], 1u);
            for (std::size_t i = 0; i < count; ++i)
                ASSERT_EQ(textOf(additions::getCell(column.get(), i)), expected[i]);
        }
    }
}

TEST_F(StringVectorTest, MissingStringsAreLeftOutAndOtherArraysRefused)
{
    ArrayPtr const word = characters(u"word"), real = number(1);
    EXPECT_EQ(call("vector", strings({u"a", {}, u"b", {}}))->get_number_of_elements(), 2u);
    EXPECT_EQ(HostDataType<Strings>::fromHost(nullptr), Strings());
    struct Case {
        ArrayPtr input;
        char const* key;
        std::vector<std::string> arguments;
    };
    Case const cases[] = {{cells({word.get(), word.get(), real.get()}), "must_be_string", {"2"}},
                          {cells({nullptr}), "must_be_string", {"0"}},
                          {cells({strings({u"a"}).get()}), "must_be_string", {"0"}},
                          {number(1), "must_be_cell_array", {}},
                          {characters(u"a"), "must_be_cell_array", {}}};
    for (auto const& [input, key, arguments] : cases) {
        EXPECT_NE(errorOf([&] { call("vector", input); }), "") << key;
        try {
            HostDataType<Strings>::fromHost(input.get());
            ADD_FAILURE() << key;
        } catch (foundation::core::except::IMsgIDException const& error) {
            EXPECT_EQ(error.getErrorID(), std::string("orbis_factory:orbis_factory:") + key);
            EXPECT_EQ(error.getArguments(), arguments);
        }
    }
    EXPECT_FALSE(scalar<bool>(call("maybe", ArrayPtr(additions::createMatrix(0, 0, hvDOUBLE_CLASS)))));
    EXPECT_TRUE(scalar<bool>(call("maybe", ArrayPtr(hvCreateCellMatrix(0, 0)))));
}

TEST_F(StringVectorTest, ViewsSeeTextThatTheCallOwns)
{
    EXPECT_EQ(callText("view", characters(u"a text that is too long to stand in a small place")),
              "a text that is too long to stand in a small place");
    EXPECT_EQ(scalar<double>(call("length", characters({u"a\0é", 3}))), 4.0);
    EXPECT_EQ(textOf(call("wide", characters(u"x\xD800")).get()), u"\xD800");
    EXPECT_EQ(callText("maybeView", characters(u"a text that is too long to stand in a small place")),
              "a text that is too long to stand in a small place");
    EXPECT_EQ(callText("maybeView", characters(u"")), "") << "no characters are a text";
    EXPECT_EQ(callText("maybeView", ArrayPtr(additions::createMatrix(0, 0, hvDOUBLE_CLASS))), "none");
    EXPECT_EQ(callText("maybeView", strings({{}})), "none");
    EXPECT_EQ(hvm().describeFunction("tests.maybeView").inputs.at(0).dataType, "char vector or empty");
    EXPECT_EQ(hvm().describeFunction("tests.wide").inputs.at(0).dataType, "OrbisFactoryString scalar");
}
