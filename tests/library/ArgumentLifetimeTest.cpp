#include "HvmTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/DataTypePolicy.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/detail/ArgumentHolder.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

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

/// A native type that a data type carries which is registered already.
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
        std::string text = std::move(Marshaler<StringPolicy>::fromHost<std::string>(in).value());
        if (text == "refused")
            throw std::runtime_error("refused");
        return FromM<T>(std::move(text));
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
    static Title fromHost(hvArray* value) { return {value ? extractString(value) : u""}; }
};

namespace {

int heldAtCall = 0;

class ArgumentLifetimeTest : public HvmTest {
protected:
    ArgumentLifetimeTest()
    {
        registerOrbisPackage("tests", [](COSPackage* package) {
            publish(package, describeFunctions()
                                 .function("call",
                                           [](Watched a, char const*, Watched const& b, std::string const& text) {
                                               heldAtCall = Marshaler<WatchedPolicy>::held;
                                               if (text == "fail")
                                                   throw std::runtime_error("failed");
                                               return a.text + b.text + text;
                                           })
                                 .function("failing", [](std::string const& text) { return Watched{text}; })
                                 .function("title", [](Title title) {
                                     title.text += u"!";
                                     return title;
                                 }));
        });
    }

    ArrayPtr call(char const* function, std::initializer_list<std::u16string_view> inputs)
    {
        std::vector<ArrayPtr> owners;
        std::vector<hvArray*> arrays;
        for (std::u16string_view const input : inputs)
            arrays.push_back(owners.emplace_back(characters(input)).get());
        return hvm().callFunction(std::string("tests.") + function, arrays);
    }
};

TEST_F(ArgumentLifetimeTest, HoldersLiveExactlyAsLongAsTheCall)
{
    int& held = Marshaler<WatchedPolicy>::held;
    EXPECT_EQ(textOf(call("call", {u"a", u"", u"b", u"c"}).get()), u"abc");
    EXPECT_EQ(heldAtCall, 2);
    EXPECT_EQ(held, 0);
    using Inputs = std::initializer_list<std::u16string_view>;
    for (Inputs const inputs : {Inputs{u"a", u"", u"b", u"fail"}, Inputs{u"a", u"text", u"refused", u""}}) {
        EXPECT_EQ(errorOf([&] { call("call", inputs); }), "VELMARA:native:exception");
        EXPECT_EQ(held, 0);
    }
}

// That the array is given back, the fixture's counts tell.
TEST_F(ArgumentLifetimeTest, ResultsThatFailHalfwayGiveTheirArrayBack)
{
    EXPECT_EQ(errorOf([&] { call("failing", {u"a"}); }), "VELMARA:native:exception");
}

TEST_F(ArgumentLifetimeTest, AuthorsNameADataTypeForATypeOfTheirOwn)
{
    EXPECT_EQ(textOf(call("title", {u"a"}).get()), u"a!");
    auto const record = hvm().describeFunction("tests.title");
    EXPECT_EQ(record.inputs.at(0).dataType, "OrbisFactoryString scalar");
    EXPECT_EQ(record.outputs.at(0).dataType, "OrbisFactoryString scalar");
}

} // namespace
