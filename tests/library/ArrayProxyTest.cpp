#include "library/FunctionsTest.hpp"
#include "library/Tally.hpp"
#include "library/publishClass.hpp"
#include "library/texts.hpp"

#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/withDefaults.hpp"

using namespace orbis;
using namespace orbis::factory;
using Counted = hvArrayReferenceCountedProxy;
using velmara::ArrayPtr;

namespace {

using ArrayProxyTest = FunctionsTest;

TEST_F(ArrayProxyTest, PlainProxiesConvertToTheOneObjectOnly)
{
    TallyInfo::publishIn("tests");
    ArrayPtr const tally = hvm().construct("tests.Tally"), one = number(1);
    ArrayPtr const pair = rowOf("tests.Tally", {&tally, nullptr}), empty(omCreateORBISMatrix(0, 0, "tests.Tally"));
    COSInterfacePtr const object = objectIn(tally);
    COSInterface* const raw = object;
    for (hvArray* const array : {tally.get(), pair.get(), empty.get(), one.get(), static_cast<hvArray*>(nullptr)}) {
        COSInterfacePtr const found = hvArrayProxy(array), foundConst = hvConstArrayProxy(array);
        EXPECT_EQ(static_cast<COSInterface*>(found), array == tally.get() ? raw : nullptr);
        EXPECT_EQ(static_cast<COSInterface*>(foundConst), array == tally.get() ? raw : nullptr);
    }
    EXPECT_EQ(hvArrayProxy(COSInterfacePtr())(), nullptr);
    EXPECT_EQ(hvConstArrayProxy(COSInterfacePtr())(), nullptr);
    ArrayPtr const made(hvArrayProxy{object}()), madeConst(const_cast<hvArray*>(hvConstArrayProxy{object}()));
    EXPECT_TRUE(velmara::isSameObject(made.get(), tally.get()));
    EXPECT_TRUE(velmara::isSameObject(madeConst.get(), tally.get()));
}

TEST_F(ArrayProxyTest, CountedProxiesHoldOneReferenceEach)
{
    auto const arrays = [] { return velmara::liveCounts().arrays; };
    ArrayPtr array = number(1), other = number(2);
    std::optional<Counted> first(array.get());
    array.reset();
    Counted second(*first);
    EXPECT_TRUE(second == *first && !(second == Counted()));
    first.reset();
    second = *&second;
    second = Counted(second);
    EXPECT_EQ(arrays(), 2) << "the copy holds the array on";
    second = Counted(other.get());
    EXPECT_EQ(arrays(), 1) << "only the other one is left";
    other.reset();
    EXPECT_EQ(arrays(), 1);
    second = Counted();
    EXPECT_EQ(arrays(), 0);
    EXPECT_TRUE(second == Counted() && second() == nullptr);
}

TEST_F(ArrayProxyTest, NativeFunctionsTakeAndGiveArrays)
{
    static Counted kept;
    publishFunctions(describeFunctions()
                         .function("size", [](hvArrayProxy a) { return double(a()->get_number_of_elements()); })
                         .function("size2", [](hvConstArrayProxy const& a) { return double(a() != nullptr); })
                         .function("make", [] { return hvArrayProxy(hvCreateString("made")); })
                         .function("echo", [](double, hvConstArrayProxy a) { return a; })
                         .function("none", [] { return hvConstArrayProxy(nullptr); })
                         .function("swap", [](Counted array) {
                             std::swap(kept, array);
                             return array;
                         }));
    for (ArrayPtr const& array : {texts::characters(u"ab"), texts::cells({nullptr, nullptr})}) {
        EXPECT_EQ(scalar<double>(call("size", array)), 2);
        EXPECT_EQ(scalar<double>(call("size2", array)), 1);
        EXPECT_EQ(call("swap", array), nullptr);
        EXPECT_EQ(call("swap", array).get(), array.get()) << "with a reference of its own";
        kept = {};
        EXPECT_EQ(call("echo", number(1), array).get(), array.get()) << "with a reference of its own";
    }
    EXPECT_EQ(texts::textOf(call("make")), u"made");
    EXPECT_EQ(call("none"), nullptr);
    for (char const* const function : {"tests.size", "tests.size2", "tests.swap"})
        EXPECT_EQ(hvm().describeFunction(function).inputs.at(0).dataType, "any");
}

/// Keeps an array that the test owns.
struct Shelf {
    virtual ~Shelf() = default;

    static hvArray* kept;

    hvArrayProxy const& byReference() const { return array; }
    hvArrayProxy echo(hvArrayProxy given) const { return given; }

    hvArrayProxy const array = kept;
    std::optional<hvConstArrayProxy> const optional = kept;
    std::optional<hvArrayProxy> const none = {};
};

hvArray* Shelf::kept = nullptr;

} // namespace

PUBLISHED_IN_TESTS(Shelf)

namespace {

TEST_F(ArrayProxyTest, ArraysThatAreNotNewStayWhoseTheyWere)
{
    ArrayPtr const kept = texts::characters(u"kept"), given = texts::characters(u"given");
    Shelf::kept = kept.get();
    publishClass<Shelf>([](auto& c) {
        c.constructor()
            .property("array", &Shelf::array)
            .property("optional", &Shelf::optional)
            .property("byReference", &Shelf::byReference)
            .property("none", &Shelf::none)
            .staticMethod("refer", [](hvArrayProxy const& a) -> hvArrayProxy const& { return a; })
            .method("echo", &Shelf::echo)
            .staticMethod("wrap", [](hvArrayProxy a) { return std::optional(a); })
            .staticMethod(
                "make", [](int) { return hvArrayProxy(hvCreateString("made")); }, "a", withDefaults(1))
            .staticMethod("pass", [](std::optional<hvConstArrayProxy> const& a) { return a; })
            .staticMethod(
                "choose", [](Counted a) { return std::optional<hvArrayProxy>(a()); }, "a",
                withDefaults(Counted(Shelf::kept)));
    });
    ArrayPtr const shelf = hvm().construct("tests.Shelf");
    auto const before = velmara::liveCounts();
    for (int repeated = 0; repeated != 3; ++repeated) {
        for (char const* const property : {"array", "optional", "byReference"})
            EXPECT_EQ(hvm().get(shelf.get(), property).get(), kept.get());
        EXPECT_EQ(velmara::liveCounts(), before);
        EXPECT_EQ(hvm().get(shelf.get(), "none")->get_number_of_elements(), 0u);
        for (char const* const function : {"refer", "wrap", "pass", "choose"})
            EXPECT_EQ(hvm().callStatic("tests.Shelf", function, inputs(given)).get(), given.get());
        EXPECT_EQ(hvm().callStatic("tests.Shelf", "choose").get(), kept.get());
        EXPECT_EQ(hvm().call(shelf.get(), "echo", inputs(given)).get(), given.get());
        EXPECT_EQ(texts::textOf(hvm().callStatic("tests.Shelf", "make")), u"made");
        EXPECT_EQ(velmara::liveCounts(), before);
    }
}

} // namespace
