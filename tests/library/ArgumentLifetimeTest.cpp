#include "HvmTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"
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

using ArgumentLifetimeTest = HvmTest;

TEST_F(ArgumentLifetimeTest, HoldersLiveExactlyAsLongAsTheCall)
{
    static int heldAtCall = 0;
    int& held = Marshaler<WatchedPolicy>::held;
    registerOrbisPackage("tests", [](COSPackage* package) {
        publish(package, describeFunctions()
                             .function("call",
                                       [](Watched a, char const*, Watched const& b, std::string const& text) {
                                           heldAtCall = Marshaler<WatchedPolicy>::held;
                                           if (text == "fail")
                                               throw std::runtime_error("failed");
                                           return a.text + b.text + text;
                                       })
                             .function("result", [](Watched a, Watched, Watched, Watched) { return a; }));
    });
    using Inputs = std::initializer_list<std::u16string_view>;
    auto const call = [this](char const* function, Inputs texts) {
        std::vector<ArrayPtr> owners;
        std::vector<hvArray*> inputs;
        for (std::u16string_view const text : texts)
            inputs.push_back(owners.emplace_back(characters(text)).get());
        return hvm().callFunction(function, inputs);
    };
    EXPECT_EQ(textOf(call("tests.call", {u"a", u"", u"b", u"c"})), u"abc");
    EXPECT_EQ(heldAtCall, 2);
    for (Inputs const inputs : {Inputs{u"a", u"", u"b", u"fail"}, Inputs{u"a", u"text", u"refused", u""}}) {
        EXPECT_EQ(errorOf([&] { call("tests.call", inputs); }), "VELMARA:native:exception");
        EXPECT_EQ(held, 0);
    }
    // That the array of the result is given back, the fixture's counts tell.
    EXPECT_EQ(errorOf([&] { call("tests.result", {u"", u"", u"", u""}); }), "VELMARA:native:exception");
    EXPECT_EQ(held, 0);
}

TEST_F(ArgumentLifetimeTest, AuthorsNameADataTypeForATypeOfTheirOwn)
{
    registerOrbisPackage("tests", [](COSPackage* package) {
        publish(package, describeFunctions().function("echo", [](Title title) { return title; }));
    });
    EXPECT_EQ(textOf(hvm().callFunction("tests.echo", inputs(strings({u"a"})))), u"a");
    EXPECT_EQ(hvm().describeFunction("tests.echo").inputs.at(0).dataType, "OrbisFactoryString scalar");
}

} // namespace
