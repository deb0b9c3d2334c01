#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include "libkwfl/Exception.hpp"
#include "libkwfl/bad_alloc.hpp"
#include "orbis/Enumeration.hpp"

#include <cstdint>
#include <functional>
#include <new>
#include <stdexcept>

namespace {

using namespace foundation::core::except;

class tested_key : public resource_core::BaseMsgID {
public:
    explicit tested_key(std::vector<std::string> arguments = {})
        : BaseMsgID("ExceptionTest:texts", "tested_key", std::move(arguments))
    {
    }
};

using TestedError = Exception<tested_key, std::exception>;

void addText(char const* text)
{
    orbis::host_extensions::Message const messages[] = {{"other_key", "other"}, {"tested_key", text}};
    orbis::host_extensions::addMessages("ExceptionTest:texts", messages);
}

std::string textOf(std::vector<std::string> arguments)
{
    return TestedError(tested_key(std::move(arguments))).what();
}

} // namespace

using ExceptionTest = HvmTest;

TEST_F(ExceptionTest, TextsAreFilledWithTheArguments)
{
    std::pair<char const*, char const*> const texts[] = {
        {"plain", "plain"},
        {"{0} and {1}, {0} again", "first and {1}, first again"},
        {"{1}{0}", "{1}first"},
        {"{{0}} is literal", "{0}} is literal"},
        {"{ }, {x}, {0x}, {-1}, {", "{ }, {x}, {0x}, {-1}, {"},
        {"{0", "{0"},
        {"{99999999999999999999999}", "{99999999999999999999999}"},
    };
    for (auto const& [text, filled] : texts) {
        addText(text);
        EXPECT_EQ(textOf({"first"}), filled);
    }
    addText("{0} and {1}");
    EXPECT_EQ(textOf({"{1}", "two"}), "{1} and two");
    std::string const withZero("a\0b", 3);
    described::publish(new described::Class("Z", [&](orbis::COSClass* cls) {
        cls->addMethod(new described::Method("f", "", {}, [&](auto&&) { throw TestedError(tested_key({withZero})); },
                                             {.isStatic = true}));
        cls->addMethod(new described::Method("g", "", {}, [](auto&&) { throw std::bad_alloc(); }, {.isStatic = true}));
    }));
    EXPECT_EQ(errorOf([&] { hvm().callStatic("Z", "g"); }), "VELMARA:memory:exhausted");
    EXPECT_EQ(caught([&] { hvm().callStatic("Z", "f"); }, &velmara::Error::text), withZero + " and {1}");
    // A position and UTF-16 text, as errors about elements of containers have them.
    TestedError const made(
        tested_key({std::to_string(SIZE_MAX), IUserException::convert_str(u"k\xE4\xD83D\xDE00\xD800")}));
    EXPECT_STREQ(made.what(), "18446744073709551615 and k\xC3\xA4\xF0\x9F\x98\x80\xEF\xBF\xBD");
    EXPECT_EQ(made.GetUnicodeMessageTxt(), u"18446744073709551615 and k\xE4\xD83D\xDE00\xFFFD");
}

TEST_F(ExceptionTest, FailuresAreValuesWhereAskedForUnlessTheyAreOfAClassOfTheirOwn)
{
    struct Own : velmara::Error {
        using Error::Error;
    };
    std::vector<std::function<void()>> const throwers = {
        [] { throw velmara::Error("a:b", "c"); }, [] { throw std::runtime_error("c"); }, [] { throw std::bad_alloc(); },
        [] { throw 1; }, [] { throw Own("a:b", "c"); }};
    std::string const identifiers[] = {"a:b", "VELMARA:native:exception", "VELMARA:memory:exhausted",
                                       "VELMARA:native:unknown"};
    std::size_t index = 0;
    described::publish(new described::Class("F", [&](orbis::COSClass* cls) {
        cls->addMethod(new described::Method("f", "", {"F"}, [&](auto&&) { throwers[index](); }));
    }));
    velmara::ArrayPtr const object = hvm().construct("F");
    velmara::MemberName method("F", "f");
    for (std::string const& identifier : identifiers) {
        velmara::Hvm::Failure failure;
        EXPECT_TRUE(hvm().call(object.get(), method, {}, failure).slot().isEmpty());
        ASSERT_TRUE(failure) << identifier;
        EXPECT_EQ(failure->identifier(), identifier);
        EXPECT_EQ(errorOf([&] { hvm().call(object.get(), "f"); }), identifier);
        ++index;
    }
    velmara::Hvm::Failure failure;
    EXPECT_THROW(hvm().call(object.get(), method, {}, failure), Own);
    EXPECT_FALSE(failure);
}

TEST_F(ExceptionTest, TextsBelongToTheirVirtualMachine)
{
    addText("here");
    TestedError const made{tested_key()};
    {
        velmara::Hvm other;
        velmara::Hvm::Scope const scope(other);
        EXPECT_EQ(textOf({}), "ExceptionTest:texts:tested_key");
    }
    EXPECT_EQ(textOf({}), "here");
    endHvm();
    EXPECT_EQ(textOf({"x"}), "ExceptionTest:texts:tested_key");
    EXPECT_STREQ(made.what(), "here");
    // The host's own texts need no virtual machine.
    try {
        hvCreateDeepCopy(nullptr);
        FAIL();
    } catch (std::exception const& error) {
        EXPECT_STREQ(error.what(), "An array is needed here, but there is none.");
    }
}

TEST_F(ExceptionTest, IdentitiesAndCopiesKeepEverything)
{
    addText("k\xC3\xA4se {0}");
    std::unique_ptr<TestedError> original = std::make_unique<TestedError>(tested_key({"x"}));
    TestedError const copy(*original);
    original.reset();
    EXPECT_EQ(copy.getErrorID(), "ExceptionTest:texts:tested_key");
    EXPECT_EQ(IMsgIDException::get_error_id(tested_key()), copy.getErrorID());
    EXPECT_EQ(copy.getArguments(), std::vector<std::string>{"x"});
    EXPECT_EQ(copy.GetUnicodeMessageTxt(), u"k\xE4se x");
    EXPECT_STREQ(static_cast<std::exception const&>(copy).what(), "k\xC3\xA4se x");
    EXPECT_EQ(IMsgIDException().getErrorID(), "");
    EXPECT_STREQ(IMsgIDException().what(), "");
}

TEST_F(ExceptionTest, TheHostErrorChannelGetsACopy)
{
    addText("text");
    try {
        do_legacy_hv_error(TestedError(tested_key({"x"})));
    } catch (IMsgIDException const& error) {
        EXPECT_EQ(error.getErrorID(), "ExceptionTest:texts:tested_key");
        EXPECT_EQ(error.getArguments(), std::vector<std::string>{"x"});
        EXPECT_STREQ(dynamic_cast<std::exception const&>(error).what(), "text");
    }
    Exception<IUserException, std::exception> const plain("plain text");
    try {
        do_legacy_hv_error(plain);
    } catch (IUserException const& error) {
        EXPECT_STREQ(dynamic_cast<std::exception const&>(error).what(), "plain text");
    }
}

TEST_F(ExceptionTest, EachKindIsCaughtByBothOfItsRoots)
{
    Exception<IInternalException, std::exception> const internal("broken");
    EXPECT_THROW(throw internal, IInternalException);
    EXPECT_THROW(throw internal, std::exception);
    EXPECT_THROW(throw foundation::core::except::bad_alloc(), IException);
    EXPECT_THROW(throw foundation::core::except::bad_alloc(), std::bad_alloc);
    EXPECT_THROW(throw orbis::ENoElements(), IException);
    orbis::Enumeration<int> none;
    EXPECT_THROW(none.nextElement(), std::exception);
    orbis::ENoElements first;
    orbis::ENoElements const moved(std::move(first));
    EXPECT_STRNE(moved.what(), "");
}
