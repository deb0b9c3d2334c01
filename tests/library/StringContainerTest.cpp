#include "HvmTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/argumentErrors.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/errorIdentities.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include "libkwfl/Exception.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

using Strings = std::vector<fl::ustring>;
using StringSet = std::set<fl::ustring>;

class StringContainerTest : public HvmTest {
protected:
    StringContainerTest()
    {
        registerOrbisPackage("tests", [](COSPackage* package) {
            publish(package, describeFunctions()
                                 .function("vector", [](Strings const& strings) { return strings; })
                                 .function("set", [](StringSet strings) { return strings; }));
        });
    }

    ArrayPtr call(std::string const& function, ArrayPtr const& input)
    {
        return hvm().callFunction("tests." + function, inputs(input));
    }

    /// The texts in a column of cells.
    static Strings texts(ArrayPtr const& column)
    {
        EXPECT_EQ(velmara::className(column.get()), "cell");
        EXPECT_EQ(column->get_dimensions()[1], 1u);
        Strings read;
        for (std::size_t i = 0; i < column->get_number_of_elements(); ++i)
            read.push_back(textOf(additions::getCell(column.get(), i)));
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

    std::mt19937 random(11);
    ArrayPtr const manyCells(hvCreateCellMatrix(1, 500)), manyStrings(additions::createStringMatrix(500, 1));
    Strings given(500);
    for (std::size_t i = 0; i < given.size(); ++i) {
        given[i] = anyText(random);
        hvSetCell(manyCells.get(), i, characters(given[i]).release());
        additions::setString(manyStrings.get(), i, given[i]);
    }
    EXPECT_EQ(HostDataType<Strings>::fromHost(manyCells.get()), given);
    EXPECT_EQ(HostDataType<Strings>::fromHost(manyStrings.get()), given);
    std::ranges::transform(given, given.begin(), upToZero<fl::ustring>);
    EXPECT_EQ(texts(call("vector", manyCells)), given);
}

TEST_F(StringContainerTest, EveryMistakeHasItsErrorInTheScript)
{
    ArrayPtr const a = characters(u"a"), omega = characters(u"\u03A9"), one = number(1), string = strings({u"b"});
    struct Case {
        char const* function;
        ArrayPtr input;
        std::string id, text;
    };
    std::string const own = "orbis_factory:orbis_factory:", noMatch = "VELMARA:dispatch:noMatch";
    for (auto const& [function, input, id, text] :
         {Case{"vector", cells({a.get(), a.get(), one.get()}), own + "must_be_string", "Element 2 (counted from 0)"},
          Case{"vector", cells({nullptr, one.get()}), own + "must_be_string", "Element 0"},
          Case{"vector", cells({a.get(), string.get()}), own + "must_be_string", "Element 1"},
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
    expectIdentity<own::no_duplicates>([] { errorNoDuplicates("x"); }, catalog + "no_duplicates", {"x"});
    static constexpr auto read = [](ArrayPtr const& array) { Marshaler<CharPolicy>::fromHost<char>(array.get()); };
    expectIdentity<component_VELMARA::catalog_class::key_RequireString>([] { read(number(1)); },
                                                                        "VELMARA:class:RequireString", {});
    expectIdentity<VELMARA::string::MissingNotSupported>([] { read(strings({{}})); },
                                                         "VELMARA:string:MissingNotSupported", {});
}

} // namespace
