#include "HvmTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/Exception.hpp"
#include "orbis/factory/argumentErrors.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/errorIdentities.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include "libkwfl/Exception.hpp"
#include "string_matrix/string_matrix.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

#if defined(_WIN32)
constexpr char const* libraryFile = "orbis_factory.dll";
#else
constexpr char const* libraryFile = "./liborbis_factory.so";
#endif

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
        EXPECT_EQ(hvm().lookUp("tests.vector"), velmara::NameKind::Function); // populates, so that the types are known
    }

    ArrayPtr call(char const* function, ArrayPtr const& input)
    {
        hvArray* const inputs[] = {input.get()};
        return hvm().callFunction(std::string("tests.") + function, inputs);
    }

    /// The texts in a column of cells.
    static Strings texts(ArrayPtr const& column)
    {
        Strings read;
        EXPECT_EQ(velmara::className(column.get()), "cell");
        EXPECT_EQ(column->get_dimensions()[1], 1u);
        for (std::size_t i = 0; i < column->get_number_of_elements(); ++i)
            read.push_back(textOf(additions::getCell(column.get(), i)));
        return read;
    }
};

TEST_F(StringContainerTest, TextsCrossBothWaysInTheContainersOrder)
{
    ArrayPtr const b = characters(u"b"), a = characters(u"a"), none = characters(u"");
    struct Case {
        ArrayPtr input;
        Strings vector, set;
    };
    Case const cases[] = {{cells({b.get(), a.get(), none.get()}), {u"b", u"a", u""}, {u"", u"a", u"b"}},
                          {strings({u"b", {}, u"a"}), {u"b", u"a"}, {u"a", u"b"}},
                          {strings({{}, {}}), {}, {}},
                          {strings({}), {}, {}},
                          {ArrayPtr(hvCreateCellMatrix(0, 0)), {}, {}}};
    for (auto const& [input, vector, set] : cases) {
        EXPECT_EQ(texts(call("vector", input)), vector);
        EXPECT_EQ(texts(call("set", input)), set);
    }
}

TEST_F(StringContainerTest, GeneratedTextsStayAsTheyAre)
{
    std::mt19937 random(11);
    for (std::size_t const count : {1u, 3u, 200u}) {
        ArrayPtr const cellArray(hvCreateCellMatrix(1, count)), stringArray(additions::createStringMatrix(count, 1));
        Strings given, back;
        for (std::size_t i = 0; i < count; ++i) {
            given.push_back(anyText(random));
            back.push_back(upToZero(given.back()));
            hvSetCell(cellArray.get(), i, characters(given.back()).release());
            additions::setString(stringArray.get(), i, given.back());
        }
        EXPECT_EQ(HostDataType<Strings>::fromHost(cellArray.get()), given);
        EXPECT_EQ(HostDataType<Strings>::fromHost(stringArray.get()), given);
        EXPECT_EQ(texts(call("vector", cellArray)), back);
        EXPECT_EQ(texts(call("vector", stringArray)), back);
    }
    EXPECT_TRUE(HostDataType<Strings>::fromHost(nullptr).empty());
    EXPECT_TRUE(HostDataType<StringSet>::fromHost(nullptr).empty());
}

TEST_F(StringContainerTest, EveryMistakeHasItsErrorInTheScript)
{
    hvm().loadModule(libraryFile); // brings the texts
    ArrayPtr const a = characters(u"a"), omega = characters(u"\u03A9"), one = numbers(1), string = strings({u"b"});
    struct Case {
        char const* function;
        ArrayPtr input;
        char const *id, *text;
    };
    constexpr char const* mustBeString = "orbis_factory:orbis_factory:must_be_string";
    constexpr char const* noDuplicates = "orbis_factory:orbis_factory:no_duplicates";
    constexpr char const* noMatch = "VELMARA:dispatch:noMatch";
    Case const cases[] = {
        {"vector", cells({a.get(), a.get(), one.get()}), mustBeString, "Element 2 (counted from 0)"},
        {"vector", cells({nullptr, one.get()}), mustBeString, "Element 0"},
        {"vector", cells({a.get(), string.get()}), mustBeString, "Element 1"},
        {"set", cells({a.get(), omega.get(), omega.get(), nullptr}), noDuplicates, "\"\xCE\xA9\""},
        {"set", cells({a.get(), nullptr, a.get()}), mustBeString, "Element 1"},
        {"set", strings({u"x", {}, u"x"}), noDuplicates, "\"x\""},
        {"vector", numbers(3), noMatch, "Several strings are needed"},
        {"set", characters(u"a"), noMatch, "Several strings are needed"},
    };
    for (auto const& [function, input, id, text] : cases) {
        try {
            call(function, input);
            ADD_FAILURE() << id;
        } catch (velmara::Error const& error) {
            EXPECT_EQ(error.identifier(), id);
            EXPECT_NE(error.text().find(text), std::string::npos) << error.text();
        }
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
        EXPECT_NE(dynamic_cast<foundation::core::except::IUserException const*>(&error), nullptr);
    }
}

TEST_F(StringContainerTest, ErrorsAreThrownAsTheirIdentities)
{
    namespace own = orbis_factory::orbis_factory;
    std::string const catalog = "orbis_factory:orbis_factory:";
    expectIdentity<own::must_be_cell_array>(errorMustBeCellArray, catalog + "must_be_cell_array", {});
    expectIdentity<own::must_be_string>([] { errorMustBeString(2); }, catalog + "must_be_string", {"2"});
    expectIdentity<own::no_duplicates>([] { errorNoDuplicates("\xCE\xA9"); }, catalog + "no_duplicates", {"\xCE\xA9"});
    expectIdentity<component_VELMARA::catalog_class::key_RequireString>(
        [] { Marshaler<StringPolicy>::fromHost<std::string>(numbers(1).get()); }, "VELMARA:class:RequireString", {});
    expectIdentity<VELMARA::string::MissingNotSupported>(
        [] { Marshaler<StringPolicy>::fromHost<std::string>(strings({{}}).get()); },
        "VELMARA:string:MissingNotSupported", {});
    EXPECT_EQ(errorOf([&] { call("vector", nullptr); }), "VELMARA:dispatch:nullInput");
}

} // namespace
