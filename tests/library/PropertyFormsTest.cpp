#include "HvmTest.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/descriptors/ClassGetter.hpp"
#include "orbis/factory/descriptors/ClassSetter.hpp"
#include "orbis/factory/makeProperty.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"
#include "orbis/factory/types/stringVectors.hpp"

#include "orbis/COSDataType.hpp"

#include <algorithm>
#include <stdexcept>

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;
using P = PropertyAttributes;

namespace {

struct Sized {
    int width = 3;
    double const scale = 0.5;
};

struct Image : Sized {
    virtual ~Image() = default;

    std::string const& title() const { return title_; }
    void setTitle(std::string_view title)
    {
        if (title == "refused")
            throw std::invalid_argument("no title");
        title_ = title;
    }
    double lock()
    {
        ++locks;
        return 1.5;
    }
    void unlock() { --locks; }
    static int getLimit() { return limit; }
    static void setLimit(int value) { limit = value; }
    int getWidth() const noexcept { return width; }
    void setWidth(int value) { width = value; }
    Image* getNext() const { return next; }
    static Image* twin(Image* image) { return image->next; }

    int locks = 0;
    std::vector<double> samples{1, 2};
    std::vector<std::string> tags{"a", "b"};
    Image* next = nullptr;

    inline static int limit = 10;
    static constexpr double pi = 3.25;

private:
    std::string title_ = "untitled";
};

int released = 0;

void countRelease(COSInterface* object, COSValue value)
{
    released += object && value.isScalarOf(hvDOUBLE_CLASS) ? 1 : 100;
}

} // namespace

PUBLISHED_IN_TESTS(Image)

namespace {

void describeImage(ClassDescriber<Image>& c)
{
    auto const gain = std::make_shared<double>(2);
    c.constructor()
        .property("width", &Image::width)
        .property("scale", &Image::scale)
        .property("shown", &Image::width, P::NoAccessSetter())
        .property("title", &Image::title, &Image::setTitle)
        .property("samples", &Image::samples)
        .property("tags", &Image::tags)
        .property("next", &Image::next)
        .property("twin", &Image::twin)
        .property("locked", releasedBy<&Image::unlock>(&Image::lock))
        .property("seen", releasedBy<&countRelease>([](Image*) { return 2.5; }), P::Transient())
        .property("handed", releasedBy<[](Image* image) { image->locks -= 10; }>(&Image::width), &Image::width)
        .property("epoch", releasedBy<[] { released += 1000; }>([] { return 1970; }))
        .property(
            "gain", [gain](Image const* image) { return *gain * image->width; },
            [gain](Image*, double value) { *gain = value; }, "In both")
        .staticProperty(
            "gained", [gain] { return *gain; }, [gain](double value) { *gain = value; })
        .property("mixed", &Image::width, [](Image* image, int const& width) { image->width = 2 * width; })
        .property(
            "doubled", [](Image const* image) { return 2 * image->width; },
            [](Image* image, int value) { image->width = value / 2; })
        .property("guarded", &Image::locks, P::PrivateSetter())
        .property("global", &Image::pi)
        .writeOnlyProperty("extent", &Image::width)
        .staticProperty("limit", &Image::limit)
        .staticProperty("limitByFunctions", &Image::getLimit, &Image::setLimit)
        .staticProperty("limitMixed", &Image::limit, [](int value) { Image::limit = -value; })
        .staticProperty("pi", &Image::pi, P::Hidden());
}

class PropertyFormsTest : public HvmTest {
protected:
    PropertyFormsTest()
    {
        publishClass<Image>(&describeImage);
        object_ = hvm().construct("tests.Image");
    }

    Image& native() { return *static_cast<Image*>(objectIn(object_)->getNativeObject(COSNameID("tests.Image"))); }

    template <class T>
    T read(char const* name)
    {
        return scalar<T>(hvm().get(object_.get(), name));
    }

    std::string write(char const* name, ArrayPtr const& value)
    {
        return errorOf([&] { hvm().set(object_.get(), name, value.get()); });
    }

    static std::string textOf(ArrayPtr const& array)
    {
        std::unique_ptr<char, void (*)(void*)> const text(hvArrayToString(array.get()), &hvFreeEx);
        return text.get();
    }

    ArrayPtr object_;
};

TEST_F(PropertyFormsTest, ScalarsThroughDataAndFunctions)
{
    // What it reads as at first, and after 7 was written; the same where that is refused.
    using Case = std::tuple<char const*, double, double>;
    for (auto const& [name, first, second] :
         {Case{"width", 3, 7}, Case{"scale", 0.5, 0.5}, Case{"shown", 7, 7}, Case{"mixed", 7, 14},
          Case{"doubled", 28, 6}, Case{"global", 3.25, 3.25}, Case{"limit", 10, 7}, Case{"limitByFunctions", 7, 7},
          Case{"limitMixed", 7, -7}, Case{"pi", 3.25, 3.25}, Case{"gain", 6, 21}}) {
        SCOPED_TRACE(name);
        auto const get = [&, member = name] {
            ArrayPtr const value = hvm().get(object_.get(), member);
            return velmara::className(value.get()) == "int32" ? scalar<std::int32_t>(value) : scalar<double>(value);
        };
        EXPECT_EQ(get(), first);
        bool const isRefused = first == second && name != std::string_view("limitByFunctions");
        EXPECT_EQ(write(name, number(7)), isRefused ? "VELMARA:property:readOnly" : "");
        EXPECT_EQ(get(), second);
    }
    EXPECT_EQ(write("extent", number(21)), "");
    EXPECT_EQ(native().width, 21);
    EXPECT_EQ(write("guarded", number(1)), "VELMARA:property:setAccess");
    EXPECT_EQ(write("width", number(1.5)), "VELMARA:property:value");
    EXPECT_EQ(errorOf([&] { read<std::int32_t>("extent"); }), "VELMARA:property:writeOnly");
    hvm().setStatic("tests.Image", "limit", number(4).get());
    EXPECT_EQ(scalar<std::int32_t>(hvm().getStatic("tests.Image", "limitByFunctions")), 4);
    Image::limit = 10;
    hvm().setStatic("tests.Image", "gained", number(4).get());
    EXPECT_EQ(read<double>("gain"), 84) << "each keeps what it captured";
}

TEST_F(PropertyFormsTest, TextsRowsAndObjectsAreConvertedAndReleased)
{
    EXPECT_EQ(textOf(hvm().get(object_.get(), "title")), "untitled");
    EXPECT_EQ(write("title", ArrayPtr(hvCreateString("sunrise"))), "");
    EXPECT_EQ(write("title", ArrayPtr(hvCreateString("refused"))), "VELMARA:native:exception");
    EXPECT_EQ(native().title(), "sunrise");

    ArrayPtr const row(host_extensions::createMatrix(1, 3, hvDOUBLE_CLASS));
    EXPECT_EQ(hvm().get(object_.get(), "samples")->get_number_of_elements(), 2u);
    EXPECT_EQ(write("samples", row), "");
    EXPECT_EQ(native().samples, std::vector<double>(3));
    ArrayPtr const tags = hvm().get(object_.get(), "tags");
    native().tags.clear();
    EXPECT_EQ(write("tags", tags), "");
    EXPECT_EQ(native().tags, (std::vector<std::string>{"a", "b"}));

    EXPECT_EQ(write("next", object_), "");
    EXPECT_EQ(native().next, &native());
    EXPECT_TRUE(velmara::isSameObject(hvm().get(object_.get(), "next").get(), object_.get()));
}

TEST_F(PropertyFormsTest, ReleaseRoutinesRunOnceForEachValue)
{
    released = 0;
    EXPECT_EQ(read<double>("locked"), 1.5);
    EXPECT_EQ(native().locks, 0);
    read<double>("seen");
    EXPECT_EQ(released, 1);
    read<std::int32_t>("handed");
    EXPECT_EQ(native().locks, -10);
    read<std::int32_t>("epoch");
    EXPECT_EQ(released, 1001);
    EXPECT_EQ(write("handed", number(8)), "");
    EXPECT_EQ(native().width, 8);
    EXPECT_EQ(native().locks, -10) << "writing reads nothing";
}

TEST_F(PropertyFormsTest, DescriptorsAreCreatedFromTheDescription)
{
    ClassDescriber<Image> description;
    describeImage(description);
    auto const made = [&](std::string_view name) {
        PropertyRecord const& record = *std::ranges::find(description.properties(), name, &PropertyRecord::name);
        return makeProperty(record);
    };
    EXPECT_FALSE(made("pi")->isVisible());
    EXPECT_EQ(made("shown")->getMemberSetAccess(), MemberAccess::NoAccess);
    EXPECT_EQ(made("twin")->getMemberSetAccess(), MemberAccess::NoAccess) << "a function is no data";
    EXPECT_STREQ(made("title")->getDataType()->scalarTypeName(), "char vector");
    COSInterface* const host = objectIn(object_);
    for (std::string const& error : {messageIdOf([&] { made("extent")->getValue(host); }),
                                     messageIdOf([&] { made("extent")->releaseValue(host, {}); }),
                                     messageIdOf([&] { made("scale")->setValue(host, COSValue(1.0)); })})
        EXPECT_EQ(error, "orbis_factory:orbis_factory:null_fcn_ptr");
    for (std::string const& error : {messageIdOf([&] { made("scale")->getValue(nullptr); }),
                                     messageIdOf([&] { made("extent")->setValue(nullptr, COSValue(1.0)); })})
        EXPECT_EQ(error, "orbis_factory:orbis_factory:null_self");
}

/// A getter of a type of its own, or none.
struct Typed final : impl::Getter {
    explicit Typed(char const* type) : type_(type) {}
    COSValue getValue(COSInterface*) const override { return {}; }
    char const* dataTypeName() const override { return type_; }
    void releaseValue(COSInterface*, COSValue) const override {}
    Enumeration<COSInterface*> getInterfaces(COSInterface*) const override { return {}; }
    bool canContainInterfaces() const override { return false; }

    char const* type_;
};

struct WithDescription final : impl::PropertyImpl {
    using PropertyImpl::PropertyImpl;
    char const* getDescription() const override { return "described"; }
};

/// The descriptors themselves, as the host asks them.
TEST_F(PropertyFormsTest, MissingSidesHaveNoAccess)
{
    ArrayPtr const other = hvm().construct("tests.Image");
    COSInterface* const object = objectIn(object_);
    impl::ClassGetter<int, Image, int (Image::*)() const, int> getter(&Image::getWidth);
    impl::ClassGetter<Image*, Image, Image* (Image::*)() const, Image*> objectGetter(&Image::getNext);
    impl::ClassSetter<int, Image, void (Image::*)(int)> setter(&Image::setWidth);
    impl::PropertyImpl const readOnly("r", &getter, P::Destructible());
    impl::PropertyImpl const writeOnly("w", &setter, {});
    impl::PropertyImpl const both("b", &getter, &setter, P::PrivateSetter());
    impl::PropertyImpl const held("h", &objectGetter, {});

    using Case = std::tuple<impl::PropertyImpl const&, int, int, bool, bool>;
    for (auto const& [property, get, set, isTransient, canContain] :
         {Case{readOnly, 0, 5, true, false}, Case{writeOnly, 5, 0, true, true}, Case{both, 0, 2, false, false},
          Case{held, 0, 5, true, true}}) {
        EXPECT_EQ(static_cast<int>(property.getMemberGetAccess()), get);
        EXPECT_EQ(static_cast<int>(property.getMemberSetAccess()), set);
        EXPECT_EQ(property.isTransient(), isTransient);
        EXPECT_EQ(property.canContainInterfaces(), canContain);
        EXPECT_FALSE(property.isDestructible()) << "the host's default, whatever the attributes say";
        EXPECT_FALSE(property.getVXArrays(nullptr, object).hasMoreElements());
    }
    Typed typed("double scalar"), untyped(nullptr);
    WithDescription const described("t", &typed, &setter, {});
    EXPECT_STREQ(described.getDetailedDescription(), "described");
    impl::PropertyImpl const unnamed("u", &untyped, &setter, {});
    EXPECT_STREQ(described.getDataType()->scalarTypeName(), "double scalar");
    for (impl::PropertyImpl const* const property : {&unnamed, &writeOnly})
        EXPECT_STREQ(property->getDataType()->scalarTypeName(), "int32 scalar");
    EXPECT_FALSE(held.getInterfaces(nullptr, object).hasMoreElements());
    hvm().set(object_.get(), "next", other.get());
    auto interfaces = held.getInterfaces(nullptr, object);
    EXPECT_EQ(interfaces.nextElement(), objectIn(other));
    EXPECT_FALSE(interfaces.hasMoreElements());
    EXPECT_FALSE(both.getInterfaces(nullptr, object).hasMoreElements());
}

} // namespace
