#include "library/FunctionsTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/base/argumentErrors.hpp"
#include "orbis/factory/base/errorIdentities.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"
#include "orbis/factory/types/stringVectors.hpp"
#include "orbis/factory/types/unicodeStringContainers.hpp"

#include "libkwfl/Exception.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

using Strings = std::vector<fl::ustring>;
using StringSet = std::set<fl::ustring>;
using Utf8Strings = std::vector<std::string>;

class StringContainerTest : public FunctionsTest {
protected:
    StringContainerTest()
    {
        publishFunctions(describeFunctions()
                             .function("vector", [](Strings const& strings) { return strings; })
                             .function("set", [](StringSet strings) { return strings; })
                             .function("utf8", [](Utf8Strings const& strings) { return strings; })
                             .function("maybe", [](std::optional<Utf8Strings> strings) { return strings.has_value(); })
                             .function("view", [](std::string_view text) { return text; })
                             .function("wide", [](std::u16string_view text) { return text.substr(1); })
                             .function("length", [](std::string_view text) { return double(text.size()); })
                             .function("maybeView", [](std::optional<std::string_view> const& text) {
                                 return text ? std::string(*text) : std::string("none");
                             }));
    }

    /// The texts in a column of cells.
    static Strings texts(ArrayPtr const& column)
    {
        EXPECT_EQ(velmara::className(column.get()), "cell");
        EXPECT_EQ(column->get_dimensions()[1], 1u);
        Strings read;
        for (std::size_t i = 0; i < column->get_number_of_elements(); ++i)
            read.push_back(textOf(host_extensions::getCell(column.get(), i)));
        return read;
    }
};

TEST_F(StringContainerTest, TextsCrossBothWaysInTheContainersOrder)
{
    ArrayPtr const b = characters(u"b"), a = characters(u"a"), zero = characters({u"\0x", 2});
    struct Case {
        ArrayPtr input;
        Strings vector, set;
    };
    for (auto const& [input, vector, set] :
         {Case{cells({b.get(), a.get(), zero.get()}), {u"b", u"a", u""}, {u"", u"a", u"b"}},
          Case{strings({u"b", {}, u"a"}), {u"b", u"a"}, {u"a", u"b"}}, Case{strings({{}, {}}), {}, {}},
          Case{ArrayPtr(hvCreateCellMatrix(0, 0)), {}, {}}}) {
        EXPECT_EQ(texts(call("vector", input)), vector);
        EXPECT_EQ(texts(call("set", input)), set);
    }
    EXPECT_TRUE(HostDataType<Strings>::fromHost(nullptr).empty() && HostDataType<StringSet>::fromHost(nullptr).empty());
    EXPECT_TRUE(HostDataType<Utf8Strings>::fromHost(nullptr).empty());
    EXPECT_EQ(texts(call("utf8", strings({u"a", {}, u"b", {}}))), (Strings{u"a", u"b"}));

    std::mt19937 random(11);
    ArrayPtr const manyCells(hvCreateCellMatrix(1, 500)), manyStrings(host_extensions::createStringMatrix(500, 1));
    Strings given(500);
    for (std::size_t i = 0; i < given.size(); ++i) {
        given[i] = anyText(random);
        hvSetCell(manyCells.get(), i, characters(given[i]).release());
        host_extensions::setString(manyStrings.get(), i, given[i]);
    }
    EXPECT_EQ(HostDataType<Strings>::fromHost(manyCells.get()), given);
    EXPECT_EQ(HostDataType<Strings>::fromHost(manyStrings.get()), given);
    Strings whole = given; // all but ill-formed parts, which are replaced
    for (fl::ustring& text : whole)
        text = fl::i18n::to_ustring(fl::i18n::to_string(text));
    for (ArrayPtr const& many : {std::ref(manyCells), std::ref(manyStrings)})
        EXPECT_EQ(texts(call("utf8", many)), whole);
    std::ranges::transform(given, given.begin(), upToZero<fl::ustring>);
    EXPECT_EQ(texts(call("vector", manyCells)), given);
    EXPECT_FALSE(scalar<bool>(call("maybe", ArrayPtr(host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS)))));
    EXPECT_TRUE(scalar<bool>(call("maybe", ArrayPtr(hvCreateCellMatrix(0, 0)))));
}

TEST_F(StringContainerTest, ViewsSeeTextThatTheCallOwns)
{
    constexpr std::u16string_view text = u"a text that is too long for inline storage";
    EXPECT_EQ(textOf(call("view", characters(text))), text);
    EXPECT_EQ(scalar<double>(call("length", characters({u"a\0é", 3}))), 4.0);
    EXPECT_EQ(textOf(call("wide", characters(u"x\xD800"))), u"\xD800");
    EXPECT_EQ(textOf(call("maybeView", characters(text))), text);
    EXPECT_EQ(textOf(call("maybeView", characters(u""))), u"") << "no characters are a text";
    EXPECT_EQ(textOf(call("maybeView", ArrayPtr(host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS)))), u"none");
    EXPECT_EQ(textOf(call("maybeView", strings({{}}))), u"none");
    EXPECT_EQ(hvm().describeFunction("tests.maybeView").inputs.at(0).dataType, "char vector or empty");
    EXPECT_EQ(hvm().describeFunction("tests.wide").inputs.at(0).dataType, "OrbisFactoryString scalar");
}

TEST_F(StringContainerTest, EveryMistakeHasItsErrorInTheScript)
{
    ArrayPtr const a = characters(u"a"), omega = characters(u"\u03A9"), one = number(1), string = strings({u"b"});
    using Case = std::tuple<char const*, ArrayPtr, std::string, std::string>;
    std::string const own = "orbis_factory:orbis_factory:", noMatch = "VELMARA:dispatch:noMatch";
    for (auto const& [function, input, id, text] :
         {Case{"vector", cells({a.get(), a.get(), one.get()}), own + "must_be_string", "Element 2 (counted from 0)"},
          Case{"vector", cells({nullptr, one.get()}), own + "must_be_string", "Element 0"},
          Case{"vector", cells({a.get(), string.get()}), own + "must_be_string", "Element 1"},
          Case{"utf8", cells({a.get(), a.get(), one.get()}), own + "must_be_string", "Element 2 (counted from 0)"},
          Case{"utf8", cells({nullptr}), own + "must_be_string", "Element 0"},
          Case{"utf8", cells({string.get()}), own + "must_be_string", "Element 0"},
          Case{"utf8", number(1), noMatch, ""}, Case{"utf8", characters(u"a"), noMatch, ""},
          Case{"set", cells({omega.get(), omega.get(), nullptr}), own + "no_duplicates", "\"\xCE\xA9\""},
          Case{"set", cells({a.get(), nullptr, a.get()}), own + "must_be_string", "Element 1"},
          Case{"set", strings({u"x", {}, u"x"}), own + "no_duplicates", "\"x\""},
          Case{"vector", number(3), noMatch, "Several strings are needed"},
          Case{"set", characters(u"a"), noMatch, "Several strings are needed"}}) {
        expectMessage([&, function = function, &input = input] { call(function, input); }, {id + ": ", text});
    }
}

template <class Identity>
void expectIdentity(void (*raise)(), std::string const& id, std::vector<std::string> const& arguments)
{
    try {
        raise();
        ADD_FAILURE() << id;
    } catch (foundation::core::except::Exception<Identity, std::exception, void> const& error) {
        EXPECT_EQ(error.getErrorID(), id);
        EXPECT_EQ(error.getArguments(), arguments);
    }
}

TEST_F(StringContainerTest, ErrorsAreThrownAsTheirIdentities)
{
    namespace own = orbis_factory::orbis_factory;
    std::string const catalog = "orbis_factory:orbis_factory:";
    expectIdentity<own::must_be_cell_array>(errorMustBeCellArray, catalog + "must_be_cell_array", {});
    expectIdentity<own::must_be_string>([] { errorMustBeString(2); }, catalog + "must_be_string", {"2"});
    static constexpr auto readAll = [](ArrayPtr const& array) { HostDataType<Utf8Strings>::fromHost(array.get()); };
    expectIdentity<own::must_be_cell_array>([] { readAll(number(1)); }, catalog + "must_be_cell_array", {});
    expectIdentity<own::must_be_string>([] { readAll(cells({nullptr})); }, catalog + "must_be_string", {"0"});
    expectIdentity<own::no_duplicates>([] { errorNoDuplicates("x"); }, catalog + "no_duplicates", {"x"});
    static constexpr auto read = [](ArrayPtr const& array) { Marshaler<CharPolicy>::fromHost<char>(array.get()); };
    expectIdentity<component_VELMARA::catalog_class::key_RequireString>([] { read(number(1)); },
                                                                        "VELMARA:class:RequireString", {});
    expectIdentity<VELMARA::string::MissingNotSupported>([] { read(strings({{}})); },
                                                         "VELMARA:string:MissingNotSupported", {});
}

} // namespace
