#include "library/FunctionsTest.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/types/array.hpp"
#include "orbis/factory/types/chrono.hpp"
#include "orbis/factory/types/complex.hpp"
#include "orbis/factory/types/map.hpp"
#include "orbis/factory/types/nestedVectors.hpp"
#include "orbis/factory/types/objectValues.hpp"
#include "orbis/factory/types/pair.hpp"
#include "orbis/factory/types/path.hpp"
#include "orbis/factory/types/set.hpp"
#include "orbis/factory/types/variant.hpp"
#include "orbis/factory/types/wstring.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;
using Value = std::shared_ptr<hvArray_tag>;

namespace {

struct Part {
    explicit Part(double given) : size(given) { ++alive; }
    Part(Part const& other) : size(other.size) { ++alive; }
    ~Part() { --alive; }
    double size;
    inline static int alive = 0;
};

struct Counter {
    int total = 0;
};

template <class T>
T same(T value)
{
    return value;
}

/// One call of a function that returns its argument: what is passed, and what must come back or be said.
struct Row {
    char const* function;
    Value given;
    std::string expected; ///< the result as `show` writes it; else a part of the message
    bool isRefused = false;
};

class StandardTypesTest : public FunctionsTest {
protected:
    StandardTypesTest()
    {
        registerModule("parts", [](Module& parts) {
            parts.publish<Part>("Part").constructor<double>("size").property("size", &Part::size);
        });
    }

    void TearDown() override
    {
        FunctionsTest::TearDown();
        EXPECT_EQ(Part::alive, 0);
    }

    static Value text(char const* value) { return ArrayPtr(hvCreateString(value)); }
    static Value none() { return matrix<double>(0, 0, {}); }
    Value part(double size) { return hvm().construct("parts.Part", inputs(number(size))); }

    /// Cells of copies of the arrays, column by column; null for an empty cell.
    static Value cells(std::size_t rows, std::size_t columns, std::vector<Value const*> const& contents)
    {
        Value array(ArrayPtr(hvCreateCellMatrix(rows, columns)));
        for (std::size_t i = 0; i < contents.size(); ++i)
            if (contents[i])
                hvSetCell(array.get(), i, hvCreateSharedDataCopy(contents[i]->get()));
        return array;
    }

    template <class... A>
    static Value list(A const&... contents)
    {
        return cells(1, sizeof...(A), {&contents...});
    }

    /// An array as text: numbers by rows "[1 2; 3 4]", texts "'a'", cells "{...}" likewise, objects by their size.
    std::string show(hvArray_tag const* array)
    {
        if (!array)
            return "null";
        hvClassID const classID = array->_get_class_id_non_trivial();
        if (classID == hvCHAR_CLASS) {
            auto const* const units = static_cast<char16_t const*>(host_extensions::getData(array));
            return '\'' + fl::i18n::to_string({units, array->get_number_of_elements()}) + '\'';
        }
        std::size_t const rows = array->get_dimensions()[0], columns = array->get_dimensions()[1];
        std::string shown;
        for (std::size_t row = 0; row < rows; ++row)
            for (std::size_t column = 0; column < columns; ++column)
                shown += (column ? " " : row ? "; " : "") + showElement(array, classID, column * rows + row);
        return (classID == hvCELL_CLASS ? '{' : '[') + shown + (classID == hvCELL_CLASS ? '}' : ']');
    }

    std::string showElement(hvArray_tag const* array, hvClassID classID, std::size_t index)
    {
        if (classID == hvCELL_CLASS)
            return show(host_extensions::getCell(array, index));
        if (classID == hvOBJECT_CLASS) {
            COSInterfacePtr const object = omGetArrayElement(array, index);
            return object ? 'P' + show(hvm().get(ArrayPtr(omCreateORBISScalar(object)).get(), "size").get()) : "none";
        }
        return host_extensions::visitNumericClass(classID, [&]<class T>(T) {
            char shown[32];
            std::snprintf(shown, sizeof shown, "%g",
                          static_cast<double>(static_cast<T const*>(host_extensions::getData(array))[index]));
            return std::string(shown);
        });
    }

    void check(std::vector<Row> const& rows)
    {
        for (Row const& row : rows) {
            SCOPED_TRACE(row.function + (" must give " + row.expected));
            auto const action = [&] { EXPECT_EQ(show(call(row.function, row.given).get()), row.expected); };
            if (row.isRefused)
                expectMessage(action, {row.expected, "p0"});
            else
                EXPECT_EQ(caught(action, &velmara::Error::what), "");
        }
    }
};

using Named = std::pair<std::string, std::int32_t>;
using Point = std::pair<double, double>;
using Mixed = std::tuple<Part, std::optional<double>, std::vector<std::int16_t>, Named, fl::ustring>;

} // namespace

TEST_F(StandardTypesTest, PairsAndTuplesAreListsOfTheirElements)
{
    publishFunctions(describeFunctions()
                         .function("named", &same<Named>)
                         .function("point", &same<Point>)
                         .function("mixed", &same<Mixed>)
                         .function(
                             "pointer", +[](std::pair<Part*, int> given) { return given.first; })
                         .function("empty", &same<std::tuple<>>)
                         .function(
                             "views", +[] { return std::tuple<std::string_view, char const*>("a", "b"); })
                         .function(
                             "made", +[] { return std::pair(std::make_unique<Part>(7), true); }));
    Value const a = text("a"), one = number(1), half = number(0.5), three = part(3);
    Value const shorts = matrix<double>(2, 1, {4, 5}), big = matrix<double>(1, 2, {4, 1e6});
    Value const pair = list(a, one), gone = part(1);
    hvm().deleteObjects(gone.get());
    check({
        {"named", list(a, one), "{'a' [1]}"},
        {"named", cells(2, 1, {&a, &one}), "{'a' [1]}"},
        {"point", matrix<std::int8_t>(1, 2, {3, 4}), "[3 4]"},
        {"mixed", list(three, half, shorts, list(a, one), a), "{[P[3]] [0.5] [4 5] {'a' [1]} 'a'}"},
        {"mixed", cells(1, 5, {&three, nullptr, nullptr, &pair, &a}), "{[P[3]] [] [] {'a' [1]} 'a'}"},
        {"pointer", list(three, one), "[P[3]]"},
        {"pointer", list(none(), one), "[]"},
        {"empty", none(), "{}"},
        {"named", list(a), "needs a list of 2 elements, not of 1", true},
        {"named", list(a, one, one), "needs a list of 2 elements, not of 3", true},
        {"named", a, "needs a list, not char", true},
        {"named", list(one, one), "element 0 (counted from 0): needs a text, not double", true},
        {"named", list(a, half), "element 1 (counted from 0): 0.5 does not fit int32", true},
        {"named", list(a, shorts), "element 1 (counted from 0): needs one value, not double of 2-by-1", true},
        {"named", cells(1, 2, {&a, nullptr}), "element 1 (counted from 0): needs a number, not an empty cell", true},
        {"mixed", list(three, half, big, list(a, one), a),
         "element 2 (counted from 0): element 1 (counted from 0): 1e+06", true},
        {"mixed", list(three, half, shorts, list(a, a), a), "element 3 (counted from 0): element 1", true},
        {"mixed", list(one, half, shorts, list(a, one), a), "needs an object of class \"parts.Part\", not double",
         true},
        {"mixed", list(none(), half, shorts, list(a, one), a), "must be an object of class \"parts.Part\"", true},
        {"pointer", list(gone, one), "element 0 (counted from 0): The value must be an object", true},
    });
    EXPECT_EQ(show(call("views").get()), "{'a' 'b'}");
    EXPECT_EQ(show(call("made").get()), "{[P[7]] [1]}");
}

using Parts = std::vector<Part>;
using OwnParts = std::vector<std::unique_ptr<Part>>;
using SharedParts = std::vector<std::shared_ptr<Part const>>;

TEST_F(StandardTypesTest, VectorsOfObjectsCrossWholeOrNotAtAll)
{
    static SharedParts kept;
    publishFunctions(describeFunctions()
                         .function("copies", &same<Parts>)
                         .function("taken", &same<OwnParts>)
                         .function("shared", &same<SharedParts>)
                         .function(
                             "keep", +[](SharedParts given) { kept = std::move(given); })
                         .function(
                             "takeAt", +[](OwnParts given, std::int8_t) { return given.size(); }));
    Value const a = part(1), b = part(2), null(ArrayPtr(omCreateORBISMatrix(0, 0, "parts.Part")));
    auto const row = [](std::initializer_list<Value const*> parts) {
        Value objects(ArrayPtr(omCreateORBISMatrix(1, parts.size(), "parts.Part")));
        for (std::size_t i = 0; Value const* const given : parts)
            omSetArrayElement(objects.get(), i++, given ? omGetArrayElement(given->get(), 0) : COSInterfacePtr());
        return objects;
    };
    check({
        {"copies", row({&a, &b}), "[P[1] P[2]]"},
        {"copies", none(), "[]"},
        {"copies", null, "[]"},
        {"shared", null, "[]"},
        {"copies", row({&a, nullptr}), "element 1 (counted from 0): The value must be an object", true},
        {"copies", number(1), "VELMARA:dispatch:noMatch", true},
        {"taken", row({&a, &b, &a}), "element 2 (counted from 0): it is taken already", true},
    });
    EXPECT_NE(errorOf([&] { hvm().callFunction("tests.takeAt", inputs(row({&a, &b}), number(0.5))); }), "");
    EXPECT_EQ(Part::alive, 2) << "nothing was taken";
    EXPECT_FALSE(velmara::isSameObject(call("copies", a).get(), a.get()));

    hvm().callFunction("tests.keep", inputs(row({&b, nullptr})));
    EXPECT_TRUE(velmara::isSameObject(call("shared", b).get(), b.get()));
    EXPECT_EQ(kept.size(), 2u);
    expectMessage([&] { call("taken", row({&a, nullptr, &b})); }, {"element 2 (counted from 0)", "it is shared"});
    EXPECT_TRUE(velmara::isValid(a.get()));
    EXPECT_EQ(show(call("taken", row({&a, nullptr})).get()), "[P[1] none]");
    EXPECT_FALSE(velmara::isValid(a.get()));
    hvm().deleteObjects(b.get());
    EXPECT_EQ(kept.at(0)->size, 2);
    kept.clear();
}

TEST_F(StandardTypesTest, MapsAreRowsOfKeysAndValues)
{
    using Sizes = std::map<std::string, std::int32_t>;
    publishFunctions(describeFunctions()
                         .function("sizes", &same<Sizes>)
                         .function("numbers", &same<std::unordered_map<double, double>>)
                         .function("parts", &same<std::map<fl::ustring, Part>>)
                         .function("nested", &same<std::map<std::string, Sizes>>)
                         .function(
                             "made",
                             +[] {
                                 std::map<int, std::unique_ptr<Part>> parts;
                                 parts.emplace(2, std::make_unique<Part>(9));
                                 return parts;
                             })
                         .function(
                             "count", +[](Sizes const& given) { return static_cast<double>(given.size()); }));
    Value const a = text("a"), b = text("b"), one = number(1), half = number(0.5), three = part(3), nothing = none();
    Value const zero(matrix<double>(1, 2, {0, 1}));
    Value const nested = cells(1, 2, {&b, &one});
    double const nan = std::numeric_limits<double>::quiet_NaN();
    check({
        {"sizes", cells(2, 2, {&b, &a, &one, &one}), "{'a' [1]; 'b' [1]}"},
        {"sizes", list(b, one), "{'b' [1]}"},
        {"sizes", list(list(b, one)), "{'b' [1]}"},
        {"sizes", cells(2, 1, {&nested, &nested}), "key \"b\": it is there twice", true},
        {"sizes", none(), "{}"},
        {"numbers", matrix<std::int8_t>(3, 2, {3, 1, 2, 6, 4, 5}), "{[1] [4]; [2] [5]; [3] [6]}"},
        {"numbers", list(list(one, half), zero), "{[0] [1]; [1] [0.5]}"},
        {"parts", list(a, three), "{'a' [P[3]]}"},
        {"nested", cells(2, 2, {&b, &a, &nested, &nothing}), "{'a' {}; 'b' {'b' [1]}}"},
        {"sizes", a, "needs a list, not char", true},
        {"sizes", cells(2, 2, {&b, &a, &one, &half}), "key \"a\": 0.5 does not fit int32", true},
        {"sizes", cells(2, 2, {&b, &one, &one, &one}), "element 1 (counted from 0): needs a text", true},
        {"sizes", cells(2, 2, {&b, nullptr, &one, &one}), "element 1 (counted from 0): needs a text, not an empty cell",
         true},
        {"sizes", list(list(b, one), list(a)), "element 1 (counted from 0): needs a list of 2", true},
        {"sizes", matrix<double>(1, 3, {1, 2, 3}), "needs a list of 2 elements, not of 3", true},
        {"numbers", matrix<double>(2, 2, {1, nan, 3, 4}), "key nan: it has no place", true},
        {"nested", list(b, list(b, half)), "key \"b\": key \"b\": 0.5", true},
        {"parts", list(a, nothing), "key \"a\": The value must be an object", true},
    });
    EXPECT_EQ(show(call("made").get()), "{[2] [P[9]]}");
    constexpr std::size_t many = 20000;
    Value const large(ArrayPtr(hvCreateCellMatrix(many, 2)));
    for (std::size_t i = 0; i < many; ++i) {
        hvSetCell(large.get(), i, hvCreateString(std::to_string(i).c_str()));
        hvSetCell(large.get(), many + i, number(1).release());
    }
    EXPECT_EQ(scalar<double>(call("count", large)), many);
}

TEST_F(StandardTypesTest, ListsOfOneTypeAreRowsOrCells)
{
    using Grid = std::vector<std::vector<std::int16_t>>;
    publishFunctions(describeFunctions()
                         .function("three", &same<std::array<std::int32_t, 3>>)
                         .function("flags", &same<std::array<bool, 2>>)
                         .function("texts", &same<std::array<std::string, 2>>)
                         .function("grid", &same<Grid>)
                         .function("lines", &same<std::vector<std::vector<std::string>>>)
                         .function("points", &same<std::vector<Point>>)
                         .function("maybe", &same<std::vector<std::optional<double>>>)
                         .function("deep", &same<std::vector<std::vector<Parts>>>)
                         .function("set", &same<std::set<std::int8_t>>)
                         .function("reals", &same<std::unordered_set<double>>)
                         .function("names", &same<std::set<std::string>>)
                         .function("complex", &same<std::complex<double>>)
                         .function("complexes", &same<std::vector<std::complex<float>>>));
    auto const row = [](std::vector<double> const& numbers) { return Value(matrix(1, numbers.size(), numbers)); };
    Value const a = text("a"), b = text("b"), one = row({1}), two = row({1, 2}), three = row({3, 1, 2});
    Value const square(matrix<double>(2, 2, {1, 3, 2, 4})), half = row({1, 0.5}), nothing = none(), p = part(5);
    Value const strings(ArrayPtr(host_extensions::createStringMatrix(1, 2)));
    host_extensions::setString(strings.get(), 0, u"x");
    host_extensions::setString(strings.get(), 1, u"y");
    double const nan = std::numeric_limits<double>::quiet_NaN();
    check({
        {"three", three, "[3 1 2]"},
        {"three", two, "needs 3 numbers, not 2", true},
        {"three", row({1, 2, 3, 4}), "needs 3 numbers, not 4", true},
        {"three", row({1, 2, 0.5}), "element 2 (counted from 0): 0.5", true},
        {"flags", row({1, 0}), "[1 0]"},
        {"texts", list(a, b), "{'a' 'b'}"},
        {"texts", strings, "{'x' 'y'}"},
        {"texts", list(a, one), "element 1 (counted from 0): needs a text", true},
        {"grid", list(three, nothing, two), "{[3 1 2] [] [1 2]}"},
        {"grid", square, "{[1 2] [3 4]}"},
        {"grid", two, "{[1 2]}"},
        {"grid", nothing, "{}"},
        {"grid", list(two, half), "element 1 (counted from 0): element 1 (counted from 0): 0.5 does not fit int16",
         true},
        {"grid", list(two, a), "element 1 (counted from 0): needs numbers, not char", true},
        {"lines", list(list(a, b), nothing), "{{'a'; 'b'} {}}"},
        {"lines", list(list(a, one)), "element 0 (counted from 0): Element 1 (counted from 0) is no text", true},
        {"points", square, "{[1 2] [3 4]}"},
        {"points", three, "element 0 (counted from 0): needs a list of 2 elements, not of 3", true},
        {"maybe", list(one, nothing), "{[1] []}"},
        {"maybe", three, "{[3] [1] [2]}"},
        {"deep", list(list(p), nothing), "{{[P[5]]} {}}"},
        {"set", three, "[1 2 3]"},
        {"set", row({1, 2, 1}), "element 2 (counted from 0): it is there already", true},
        {"set", row({300}), "300", true},
        {"reals", three, "[1 2 3]"},
        {"reals", row({1, nan}), "element 1 (counted from 0): NaN", true},
        {"names", list(b, a), "{'a' 'b'}"},
        {"names", list(b, a, b), "element 2 (counted from 0): it is there already", true},
        {"complex", two, "[1 2]"},
        {"complex", one, "[1 0]"},
        {"complex", square, "needs one complex number, not 2", true},
        {"complex", nothing, "needs one complex number, not 0", true},
        {"complexes", square, "[1 2; 3 4]"},
        {"complexes", Value(matrix<double>(3, 1, {1, 2, 3})), "[1 0; 2 0; 3 0]"},
        {"complexes", three, "needs two columns, the real and the imaginary parts, not 3", true},
        {"complexes", nothing, "[]"},
    });
}

TEST_F(StandardTypesTest, VariantsTakeTheValuesOwnKindFirst)
{
    using Any =
        std::variant<std::monostate, std::int32_t, double, bool, std::string, Part*, std::vector<double>, Named>;
    publishFunctions(describeFunctions()
                         .function(
                             "index", +[](Any const& given) { return static_cast<double>(given.index()); })
                         .function("same", &same<Any>)
                         .function("number", &same<std::variant<std::int8_t, std::string>>));
    Value const a = text("a"), one = number(1), yes(matrix<bool>(1, 1, {true})), p = part(5);
    Value const pair = list(a, one), row(matrix<double>(1, 2, {1, 2})), whole(matrix<std::int32_t>(1, 1, {1}));
    check({
        {"index", none(), "[0]"},
        {"index", whole, "[1]"},
        {"index", Value(matrix<std::int8_t>(1, 1, {1})), "[1]"},
        {"index", one, "[2]"},
        {"index", yes, "[3]"},
        {"index", a, "[4]"},
        {"index", p, "[5]"},
        {"index", row, "[6]"},
        {"index", pair, "[7]"},
        {"same", none(), "[]"},
        {"same", pair, "{'a' [1]}"},
        {"same", p, "[P[5]]"},
        {"number", number(3), "[3]"},
        {"number", number(0.5), "it fits none of the alternatives (0.5 does not fit int8; needs a text, not double)",
         true},
        {"same", list(a, a), "element 1 (counted from 0): needs a number, not char", true},
    });
}

TEST_F(StandardTypesTest, TimesPathsAndWideTextsAreNumbersAndTexts)
{
    using namespace std::chrono;
    using Days = duration<std::int16_t, std::ratio<86400>>;
    using Moment = system_clock::time_point;
    publishFunctions(describeFunctions()
                         .function(
                             "wait", +[](milliseconds given) { return static_cast<double>(given.count()); })
                         .function(
                             "half", +[](duration<float> given) { return given / 2; })
                         .function("seconds", &same<seconds>)
                         .function("days", &same<Days>)
                         .function(
                             "next", +[](Moment given) { return given + milliseconds(1500); })
                         .function(
                             "parent", +[](std::filesystem::path const& given) { return given.parent_path(); })
                         .function("wide", &same<std::wstring>)
                         .function(
                             "widths", +[](std::wstring const& given) { return static_cast<double>(given.size()); })
                         .function(
                             "units", +[] {
                                 return std::wstring{L'a', wchar_t(0xD800), wchar_t(0), L'b'};
                             }));
    double const nan = std::numeric_limits<double>::quiet_NaN();
    auto const path = [](std::u16string_view text) { return Value(ArrayPtr(host_extensions::createText(text))); };
    check({
        {"wait", number(0.1), "[100]"},
        {"wait", number(-1.0004), "[-1000]"},
        {"half", number(3), "[1.5]"},
        {"seconds", number(60), "[60]"},
        {"seconds", number(1.5), "needs a whole number of units of 1 s, not 1.5", true},
        {"seconds", number(1e19), "is no duration of this type", true},
        {"wait", number(nan), "nan s is no duration of this type", true},
        {"wait", number(-HUGE_VAL), "-inf s is no duration", true},
        {"days", number(86400.0 * 2), "[172800]"},
        {"days", number(86400.0 * 32768), "is no duration", true},
        {"next", number(1000.25), "[1001.75]"},
        {"next", text("now"), "VELMARA:dispatch:noMatch", true},
        {"parent", path(u"a/b\u00e9\U0001F600/c"), "'a/b\u00e9\U0001F600'"},
        {"parent", text(""), "''"},
        {"parent", path({u"a\0b", 3}), "a path has no zero character", true},
        {"parent", number(1), "VELMARA:dispatch:noMatch", true},
        {"wide", path({u"\u00e9\U0001F600\xD800x", 5}), "'\u00e9\U0001F600\uFFFDx'"},
        {"widths", path(u"\U0001F600"), sizeof(wchar_t) == 4 ? "[1]" : "[2]"},
        {"wide", text(""), "''"},
    });
    EXPECT_EQ(call("units")->get_number_of_elements(), 4u);
}

namespace {

struct Scale {
    double factor;
    double operator()(double number, double offset) const { return factor * number + offset; }
};

} // namespace

TEST_F(StandardTypesTest, FunctorsKeepTheirState)
{
    auto const shared = std::make_shared<int>(0);
    {
        auto const count = [calls = 0, shared](double step) mutable {
            return ++*shared, calls += static_cast<int>(step);
        };
        publishFunctions(describeFunctions()
                             .function("count", count, "step", withDefaults(10.0))
                             .function("scale", Scale{3}, "number, offset"));
        registerModule("wheels", [shared](Module& wheels) {
            wheels.publish<Counter>("Counter")
                .constructor()
                .method("add", [shared](Counter* self, int by) { return self->total += by + *shared; })
                .method("self", owned([shared](Counter*) { return new Counter; }));
        });
    }
    EXPECT_EQ(scalar<std::int32_t>(call("count", number(2))), 2);
    EXPECT_EQ(scalar<std::int32_t>(call("count")), 12) << "one state for all signatures";
    EXPECT_EQ(*shared, 2);
    EXPECT_EQ(scalar<double>(call("scale", number(2), number(1))), 7);
    ArrayPtr const counter = hvm().construct("wheels.Counter");
    EXPECT_EQ(scalar<std::int32_t>(hvm().call(counter.get(), "add", inputs(number(5)))), 7);
    EXPECT_FALSE(velmara::isSameObject(hvm().call(counter.get(), "self").get(), counter.get()));
    endHvm();
    EXPECT_EQ(shared.use_count(), 1) << "released with the virtual machine";
}
