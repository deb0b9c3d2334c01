#include "HvmTest.hpp"
#include "TestDescriptors.hpp"
#include "library/texts.hpp"

#include "libkwi18n/libkwi18n.hpp"
#include "orbis/COSTypeConversion.hpp"
#include "orbis/COSTypeRepository.hpp"

#include <functional>

using namespace described;
using namespace orbis::host_extensions;
using texts::strings;
using velmara::ArrayPtr;

namespace {

constexpr char const* words = "DataTypeTest.Words vector";

/// A registered type whose name ends as those of class vectors do: columns of strings or cells. It counts the values
/// that are not released.
struct WordsType : orbis::COSDataType {
    explicit WordsType(int& values) : liveValues(values) {}
    int& liveValues;
    char const* cppTypeName() const override { return "Words"; }
    char const* scalarTypeName() const override { return words; }
    int typeKind() const override { return 7; }
    char const* typeCategory() const override { return "Fundamental"; }
    bool slot11Flag() const override { return false; }
    bool isEqualValue(COSValue a, COSValue b) const override { return a.array() == b.array(); }
    std::uint32_t compareValues(COSValue, COSValue) const override { return 2; }
    std::size_t valueByteSize(COSValue) const override { return 0; }
    COSValue copyValue(COSValue value) const override { return value; }
    void releaseValue(COSValue value) const override
    {
        --liveValues;
        hvDestroyArray(value.array());
    }
};

struct WordsConversion : orbis::COSTypeConversion {
    explicit WordsConversion(int& values) : liveValues(values) {}
    int& liveValues;
    void convertToHost(hvArray_tag** out, hvArray_tag* value) override { *out = hvCreateSharedDataCopy(value); }
    void convertFromHost(hvArray_tag** out, hvArray_tag* in) override
    {
        if (!hvIsA(in, "string") && !hvIsA(in, "cell"))
            throw std::runtime_error("no words");
        *out = hvCreateSharedCopyNotOnArrayList(in);
        ++liveValues;
    }
};

/// Returns the input of a method.
void echo(Call const& call, std::string const& type)
{
    COSValue const& input = call.inputs[0];
    if (type == "unicodeString")
        call.give(
            COSValue(reinterpret_cast<hvArray_tag*>(new fl::ustring(*reinterpret_cast<fl::ustring*>(input.array())))));
    else
        call.give(input.isArray() ? COSValue(hvCreateSharedDataCopy(input.array())) : input);
}

} // namespace

struct DataTypeTest : HvmTest {
    DataTypeTest()
    {
        orbis::COSTypeRepository::addGlobalType(new WordsType(liveValues_));
        orbis::COSTypeRepository::addConversion("any", words, new WordsConversion(liveValues_));
    }

    ArrayPtr call(std::string const& type, ArrayPtr const& input)
    {
        return hvm().callStatic("DataTypeTest", type, inputs(input));
    }

    int liveValues_ = 0;
};

TEST_F(DataTypeTest, EachTypeAcceptsAndReturnsItsClasses)
{
    publish(new Class("DataTypeTest.Thing"));
    ArrayPtr const one = number(1), text(createText(u"t\u00E4xt")), empty(hvCreateString("")),
                   square(createMatrix(2, 2, hvCHAR_CLASS)), cells(hvCreateCellMatrix(2, 1)),
                   thing = hvm().construct("DataTypeTest.Thing"),
                   things(orbis::omCreateORBISMatrix(1, 2, "DataTypeTest.Thing")), single = strings({u"one"}),
                   several = strings({u"one", {}}), missing = strings({{}});
    struct {
        char const* type;
        std::vector<ArrayPtr const*> taken, refused;
        char const* given; ///< the class of what comes back; null when it is that of what was taken
    } const cases[] = {
        {"any", {&one, &text, &square, &cells, &thing, &single, &several, &missing}, {}, nullptr},
        {"char", {&text, &empty}, {&one, &square, &cells, &thing, &several, &missing}, nullptr},
        {"char vector", {&text, &empty, &single}, {&one, &square, &cells, &several, &missing}, "char"},
        {"unicodeString", {&text, &empty, &single}, {&one, &square, &cells, &thing, &several, &missing}, "char"},
        {"double scalar", {&one}, {&text, &cells, &thing, &single}, "double"},
        {"DataTypeTest.Thing", {&thing}, {&one, &text, &cells, &single}, "DataTypeTest.Thing"},
        {"DataTypeTest.Thing vector", {&thing, &things}, {&one, &text, &cells, &several}, "DataTypeTest.Thing"},
        {words, {&cells, &single, &several}, {&one, &text, &thing}, nullptr},
    };
    publish(new Class("DataTypeTest", [&](orbis::COSClass* cls) {
        for (auto const& each : cases) {
            std::string const type = each.type;
            cls->addMethod(new Method(type, each.type, {type}, [type](Call const& made) { echo(made, type); },
                                      {.isStatic = true}));
        }
    }));
    for (auto const& [type, taken, refused, given] : cases) {
        SCOPED_TRACE(type);
        orbis::COSDataTypePtr const known(type);
        ASSERT_NE(static_cast<orbis::COSDataType*>(known), nullptr);
        EXPECT_STREQ(known->scalarTypeName(), type);
        for (ArrayPtr const* const input : taken) {
            ArrayPtr const result = call(type, *input);
            EXPECT_EQ(velmara::className(result.get()), given ? given : velmara::className(input->get()));
            EXPECT_EQ(result->get_number_of_elements() == 0, input == &empty);
        }
        for (ArrayPtr const* const input : refused)
            EXPECT_EQ(errorOf([&] { call(type, *input); }), "VELMARA:dispatch:noMatch")
                << velmara::className(input->get());
    }
    EXPECT_EQ(orbis::COSDataTypePtr(words)->typeKind(), 7);
    expectMessage([&] { call("unicodeString", one); },
                  {"Text is needed here: one row of characters, or a string array of one element."});
    expectMessage([&] { call("unicodeString", missing); },
                  {"A missing string cannot be used here; give a text, which may be empty."});
}

TEST_F(DataTypeTest, RegisteredTypesReleaseWhatTheyCreate)
{
    publish(new Class("DataTypeTest", [&](orbis::COSClass* cls) {
        cls->addMethod(new Method("f", words, {words, "double scalar"},
                                  [&](Call const& call) {
                                      EXPECT_EQ(liveValues_, 1);
                                      if (call.inputs[1].scalar<double>() < 0)
                                          throw std::runtime_error("negative");
                                      ++liveValues_;
                                      call.give(COSValue(hvCreateCellMatrix(1, 1)));
                                  },
                                  {.isStatic = true}));
    }));
    ArrayPtr const one = number(1), minus = number(-1), word = strings({u"x"});
    auto const f = [&](ArrayPtr const& a, ArrayPtr const& b) {
        return hvm().callStatic("DataTypeTest", "f", inputs(a, b));
    };
    EXPECT_TRUE(hvIsA(f(word, one).get(), "cell"));
    EXPECT_EQ(liveValues_, 0);
    EXPECT_EQ(errorOf([&] { f(word, minus); }), "VELMARA:native:exception");
    EXPECT_EQ(errorOf([&] { f(word, word); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(liveValues_, 0);
    expectMessage([&] { f(one, one); }, {"a: Native code failed: no words"});
    EXPECT_EQ(messageIdOf([&] { orbis::COSTypeRepository::addGlobalType(new WordsType(liveValues_)); }),
              "VELMARA:type:duplicate");
}
