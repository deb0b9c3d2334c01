#include "HvmTest.hpp"
#include "library/Tally.hpp"
#include "library/texts.hpp"

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/overload.hpp"

#include "orbis/objectArrays.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

using Strings = std::vector<fl::ustring>;

/// Overloads that tell which of them was called.
struct Chooser {
    virtual ~Chooser() = default;
    std::string text(std::string const&) { return "text"; }
    std::string strings(Strings const&) { return "strings"; }
    std::string number(double) { return "number"; }
    std::string object(Tally const*) { return "object"; }
    std::string utf16(fl::ustring const&) { return "utf16"; }
    std::string any(hvConstArrayProxy const&) { return "any"; }
    std::string failing(std::string const&) { throw std::runtime_error("failed inside"); }
};

constexpr char const* chooserName = "tests.Chooser";

} // namespace

template <>
struct orbis::factory::HostClass<Chooser> {
    static constexpr char const* name = chooserName;
};

namespace {

std::string textFunction(std::string const&)
{
    return "text";
}

class ChooserInfo final : public HandleClassInfo<Chooser, 1> {
public:
    ChooserInfo() : HandleClassInfo(chooserName, "") {}
    void initializeClass(COSClass* cls) override
    {
        publish(cls, describe<Chooser>()
                         .constructor()
                         .method("choose", &Chooser::text, "text")
                         .method("choose", &Chooser::strings, "strings")
                         .method("choose", &Chooser::number, "number")
                         .method("choose", &Chooser::object, "object")
                         .method("either", &Chooser::utf16, "text")
                         .method("either", &Chooser::strings, "strings")
                         .method("same", &Chooser::text, "narrow")
                         .method("same", &Chooser::utf16, "wide")
                         .method("last", &Chooser::any, "array")
                         .method("last", &Chooser::strings, "strings")
                         .method("fail", &Chooser::failing, "text")
                         .method("fail", &Chooser::utf16, "text")
                         .method("fail", &Chooser::any, "array"));
    }
};

class OverloadTest : public HvmTest {
protected:
    OverloadTest()
    {
        TallyInfo::publishIn("tests");
        registerOrbisPackage("tests", [](COSPackage* package) {
            package->addClass(new ChooserInfo);
            publish(package, describeFunctions()
                                 .function("choose", &textFunction)
                                 .function("choose", [](Strings const&) { return std::string("strings"); })
                                 .function("choose", [](double) { return std::string("number"); })
                                 .function("choose", [](Tally const*) { return std::string("object"); }));
        });
        chooser_ = hvm().construct(chooserName);
    }

    std::u16string called(char const* method, ArrayPtr const& input)
    {
        hvArray* const inputs[] = {input.get()};
        return textOf(hvm().call(chooser_.get(), method, inputs).get());
    }

    velmara::Error error(char const* method, ArrayPtr const& input)
    {
        try {
            called(method, input);
        } catch (velmara::Error const& refused) {
            return refused;
        }
        return {"", "none"};
    }

    static bool mentions(velmara::Error const& error, std::initializer_list<char const*> parts)
    {
        return std::ranges::all_of(parts,
                                   [&](char const* part) { return error.text().find(part) != std::string::npos; });
    }

    void TearDown() override { chooser_.reset(); }

    ArrayPtr chooser_;
};

TEST_F(OverloadTest, TheInputsDataTypeChooses)
{
    ArrayPtr const a = characters(u"a");
    std::pair<ArrayPtr, char16_t const*> const cases[] = {{characters(u"a"), u"text"},
                                                          {characters(u""), u"text"},
                                                          {strings({u"a", u"b"}), u"strings"},
                                                          {cells({a.get()}), u"strings"},
                                                          {ArrayPtr(hvCreateCellMatrix(0, 0)), u"strings"},
                                                          {number(2), u"number"},
                                                          {hvm().construct("tests.Tally"), u"object"}};
    for (auto const& [input, choice] : cases) {
        EXPECT_EQ(called("choose", input), choice);
        hvArray* const inputs[] = {input.get()};
        EXPECT_EQ(textOf(hvm().callFunction("tests.choose", inputs).get()), choice);
    }
}

TEST_F(OverloadTest, ExactBeatsConvertibleBeatsAny)
{
    ArrayPtr const a = characters(u"a");
    EXPECT_EQ(called("same", a), u"text");
    EXPECT_EQ(called("either", a), u"utf16");
    EXPECT_EQ(called("last", a), u"any");
    EXPECT_EQ(called("last", cells({a.get()})), u"strings");
    EXPECT_EQ(called("last", number(1)), u"any");
}

TEST_F(OverloadTest, AmbiguityListsTheRivals)
{
    velmara::Error const ambiguous = error("either", strings({u"a"}));
    EXPECT_EQ(ambiguous.identifier(), "VELMARA:dispatch:ambiguous");
    EXPECT_TRUE(
        mentions(ambiguous, {"text: OrbisFactoryString scalar", "strings: OrbisFactoryString vector", "string 1-by-1"}))
        << ambiguous.text();
}

TEST_F(OverloadTest, NoMatchListsAllWithTheirReasons)
{
    velmara::Error const none = error("choose", block());
    EXPECT_EQ(none.identifier(), "VELMARA:dispatch:noMatch");
    EXPECT_TRUE(mentions(none, {"text: char vector", "strings: OrbisFactoryString vector", "number: double scalar",
                                "object: tests.Tally", "char 2-by-2"}))
        << none.text();
}

TEST_F(OverloadTest, AFailureAfterTheChoiceIsFinal)
{
    EXPECT_TRUE(mentions(error("fail", characters(u"a")), {"failed inside"}));
    // The cells are looked into after the choice: "any" is not called in the place of "strings".
    EXPECT_EQ(error("last", cells({numbers(1).get()})).identifier(), "orbis_factory:orbis_factory:must_be_string");
}

} // namespace
