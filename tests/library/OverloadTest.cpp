#include "library/FunctionsTest.hpp"
#include "library/Tally.hpp"
#include "library/texts.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

using Strings = std::vector<fl::ustring>;

class OverloadTest : public FunctionsTest {
protected:
    OverloadTest()
    {
        TallyInfo::publishIn("tests");
        publishFunctions(describeFunctions()
                             .function(
                                 "four", [](std::string const&) { return u"text"; }, "text")
                             .function(
                                 "four", [](Strings const&) { return u"strings"; }, "strings")
                             .function(
                                 "four", [](double) { return u"number"; }, "number")
                             .function(
                                 "four", [](Tally const*) { return u"object"; }, "object")
                             .function("wide", [](fl::ustring const&) { return u"wide"; })
                             .function("wide", [](Strings const&) { return u"strings"; })
                             .function(
                                 "both", [](std::string const&) { return u"narrow"; }, "narrow")
                             .function(
                                 "both", [](fl::ustring const&) { return u"wide"; }, "wide")
                             .function("last", [](hvConstArrayProxy) { return u"any"; })
                             .function("last", [](Strings const&) { return u"strings"; })
                             .function("fail", [](std::string const&) -> double { throw std::runtime_error("inside"); })
                             .function("fail", [](hvConstArrayProxy) { return 1.0; }));
    }

    /// What a call gives: its text, or the error.
    std::u16string outcome(std::string const& function, ArrayPtr const& input)
    {
        try {
            return textOf(call(function, input));
        } catch (velmara::Error const& error) {
            return fl::i18n::to_ustring(error.what());
        }
    }
};

TEST_F(OverloadTest, ExactBeatsConvertibleBeatsAny)
{
    ArrayPtr const a = characters(u"a");
    using Case = std::tuple<char const*, ArrayPtr, char16_t const*>;
    for (auto const& [function, input, chosen] :
         {Case{"four", characters(u""), u"text"}, Case{"four", strings({u"a"}), u"text"},
          Case{"four", strings({u"a", u"b"}), u"strings"}, Case{"four", strings({{}}), u"strings"},
          Case{"four", cells({a.get()}), u"strings"}, Case{"four", number(2), u"number"},
          Case{"four", hvm().construct("tests.Tally"), u"object"}, Case{"wide", characters(u"a"), u"wide"},
          Case{"wide", strings({u"a"}), u"wide"}, Case{"wide", strings({u"a", u"b"}), u"strings"},
          Case{"both", characters(u"a"), u"narrow"}, Case{"last", cells({a.get()}), u"strings"},
          Case{"last", characters(u"a"), u"any"}})
        EXPECT_EQ(outcome(function, input), chosen) << function;
}

TEST_F(OverloadTest, WhatIsNotDecidedIsAnError)
{
    struct Case {
        char const* function;
        ArrayPtr input;
        std::vector<char16_t const*> parts;
    };
    ArrayPtr const one = number(1);
    for (auto const& [function, input, parts] :
         {Case{"both",
               strings({u"a"}),
               {u"VELMARA:dispatch:ambiguous", u"narrow: char vector", u"wide: OrbisFactoryString scalar", u"string"}},
          Case{"both", strings({{}}), {u"narrow: needs text, not a missing string", u"wide: A missing string"}},
          Case{"four",
               ArrayPtr(host_extensions::createMatrix(2, 2, hvCHAR_CLASS)),
               {u"VELMARA:dispatch:noMatch", u"text: needs one row of text", u"OrbisFactoryString vector",
                u"double scalar", u"tests.Tally", u"char 2-by-2"}},
          // Matching is over before anything is called: no failure leads to another candidate.
          Case{"fail", characters(u"a"), {u"VELMARA:native:exception", u"inside"}},
          Case{"last", cells({one.get()}), {u"orbis_factory:orbis_factory:must_be_string"}}})
        for (char16_t const* const part : parts)
            EXPECT_NE(outcome(function, input).find(part), std::u16string::npos)
                << function << fl::i18n::to_string(part);
}

} // namespace
