#include "library/FunctionsTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/types/DataTypePolicy.hpp"

#include <stdexcept>

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

/// A native type whose arguments are counted while they are held. As a result it stores its array, then fails.
struct Watched {
    std::string text;
};

class WatchedPolicy {};

/// A native type that a registered data type carries.
struct Title {
    fl::ustring text;
    int value() const { return 3; } // a member of the name that holders have
};

} // namespace

template <>
struct orbis::factory::MarshalingPolicy<Watched> {
    using Type = WatchedPolicy;
};

template <>
class orbis::factory::Marshaler<WatchedPolicy> {
public:
    template <class T>
    class FromM final : public detail::ArgumentHolder {
    public:
        explicit FromM(std::string text) : value_{std::move(text)} { ++held; }
        ~FromM() override { --held; }
        T& value() { return value_; }

    private:
        T value_;
    };

    template <class T>
    static void toHost(T const& value, hvArray** out)
    {
        *out = hvCreateString(value.text.c_str());
        throw std::runtime_error("too late");
    }

    template <class T>
    static FromM<T> fromHost(hvArray* in)
    {
        auto text = Marshaler<StringPolicy>::fromHost<std::string>(in);
        if (text.value() == "refused")
            throw std::runtime_error("refused");
        return FromM<T>(text.value());
    }

    template <class T>
    static char const* dataTypeText()
    {
        return "char vector";
    }

    inline static int held = 0;
};

template <>
struct orbis::factory::HostDataType<Title> {
    static constexpr char const* name = "OrbisFactoryString scalar";
    static hvArray* toHost(Title const& title) { return hvCreateString_UTF16(title.text.c_str()); }
    static Title fromHost(hvArray* value) { return {extractString(value)}; }
};

namespace {

using ArgumentLifetimeTest = FunctionsTest;

TEST_F(ArgumentLifetimeTest, HoldersLiveExactlyAsLongAsTheCall)
{
    static int heldAtCall = 0;
    int& held = Marshaler<WatchedPolicy>::held;
    publishFunctions(describeFunctions()
                         .function("call",
                                   [](Watched a, char const*, Watched const& b, std::string const& text) {
                                       heldAtCall = Marshaler<WatchedPolicy>::held;
                                       if (text == "fail")
                                           throw std::runtime_error("failed");
                                       return a.text + b.text + text;
                                   })
                         .function("result", [](Watched a, Watched, Watched, Watched) { return a; }));
    using Inputs = std::array<std::u16string_view, 4>;
    auto const callWith = [this](char const* function, Inputs t) {
        return call(function, characters(t[0]), characters(t[1]), characters(t[2]), characters(t[3]));
    };
    EXPECT_EQ(textOf(callWith("call", {u"a", u"", u"b", u"c"})), u"abc");
    EXPECT_EQ(heldAtCall, 2);
    for (Inputs const inputs : {Inputs{u"a", u"", u"b", u"fail"}, Inputs{u"a", u"text", u"refused", u""}}) {
        EXPECT_EQ(errorOf([&] { callWith("call", inputs); }), "VELMARA:native:exception");
        EXPECT_EQ(held, 0);
    }
    // That the array of the result is released, the fixture's counts tell.
    EXPECT_EQ(errorOf([&] { callWith("result", {}); }), "VELMARA:native:exception");
    EXPECT_EQ(held, 0);
}

TEST_F(ArgumentLifetimeTest, AuthorsNameADataTypeForATypeOfTheirOwn)
{
    publishFunctions(describeFunctions().function("echo", [](Title title) { return title; }));
    EXPECT_EQ(textOf(call("echo", strings({u"a"}))), u"a");
    EXPECT_EQ(hvm().describeFunction("tests.echo").inputs.at(0).dataType, "OrbisFactoryString scalar");
}

} // namespace
