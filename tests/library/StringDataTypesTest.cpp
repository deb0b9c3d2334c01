#include "HvmTest.hpp"
#include "host/messageIdOf.hpp"
#include "library/texts.hpp"

#include "orbis/factory/detail/initStringDataTypes.hpp"

#include "basic/HvmScoped.hpp"
#include "marshal/StringDataTypeRegistration.hpp"

#include "orbis/COSDataType.hpp"
#include "orbis/COSDataTypePtr.hpp"
#include "orbis/COSTypeConversion.hpp"
#include "orbis/COSTypeRepository.hpp"

using namespace orbis;
using namespace orbis::factory;
using namespace texts;

namespace {

constexpr char const* scalarName = "OrbisFactoryString scalar";
constexpr char const* vectorName = "OrbisFactoryString vector";
constexpr std::uint32_t before = 4294967295;

class StringDataTypesTest : public HvmTest {
protected:
    static COSValue valueOf(ArrayPtr const& array) { return COSValue(array.get()); }

    static bool areRegistered()
    {
        bool const conversions =
            COSTypeRepository::getConversion("any", scalarName) && COSTypeRepository::getConversion("any", vectorName);
        bool const types = COSDataTypePtr(scalarName) && COSDataTypePtr(vectorName);
        EXPECT_EQ(types, conversions);
        return types && conversions;
    }

    /// What a conversion makes of an array in one direction.
    static ArrayPtr converted(char const* type, hvArray* array, bool toHost = false)
    {
        COSTypeConversion* const conversion = COSTypeRepository::getConversion("any", type);
        hvArray* out = nullptr;
        toHost ? conversion->convertToHost(&out, array) : conversion->convertFromHost(&out, array);
        return ArrayPtr(out);
    }
};

TEST_F(StringDataTypesTest, AreRegisteredOncePerVirtualMachine)
{
    EXPECT_FALSE(areRegistered());
    auto const descriptors = [start = velmara::liveCounts().descriptors] {
        return velmara::liveCounts().descriptors - start;
    };
    for (int i = 0; i < 2; ++i) {
        detail::initStringDataTypes();
        EXPECT_TRUE(areRegistered());
        EXPECT_EQ(descriptors(), 4);
    }
    {
        velmara::Hvm other;
        velmara::Hvm::Scope const scope(other);
        EXPECT_FALSE(areRegistered());
        detail::initStringDataTypes();
        EXPECT_TRUE(areRegistered());
    }
    EXPECT_TRUE(areRegistered());
    EXPECT_EQ(descriptors(), 4);
}

/// Registers, and while it is at it another one of it is stored.
struct Overtaken {
    Overtaken()
    {
        if (++made == 2)
            return; // the one that overtakes registers nothing, so that it cannot clash
        registration.emplace();
        EXPECT_TRUE(COSDataTypePtr(scalarName) && COSDataTypePtr(vectorName));
        basic::HvmScoped<Overtaken>::get();
    }
    ~Overtaken() { --made; }

    std::optional<StringDataTypeRegistration> registration;
    inline static int made = 0;
};

TEST_F(StringDataTypesTest, ALostRaceUnregistersWhatItRegistered)
{
    Overtaken const& stored = basic::HvmScoped<Overtaken>::get();
    EXPECT_FALSE(stored.registration);
    EXPECT_EQ(Overtaken::made, 1);
    EXPECT_FALSE(areRegistered());
    detail::initStringDataTypes();
    EXPECT_TRUE(areRegistered());
    endHvm();
    EXPECT_EQ(Overtaken::made, 0);
}

TEST_F(StringDataTypesTest, AFailureOnTheWayRegistersNothing)
{
    class Blocker final : public COSTypeConversion {
        void convertToHost(hvArray**, hvArray*) override {}
        void convertFromHost(hvArray**, hvArray*) override {}
    };
    COSTypeRepository::addConversion("any", vectorName, new Blocker);
    EXPECT_EQ(messageIdOf([] { detail::initStringDataTypes(); }), "VELMARA:type:duplicateConversion");
    EXPECT_FALSE(COSDataTypePtr(scalarName) || COSDataTypePtr(vectorName));
    EXPECT_FALSE(COSTypeRepository::getConversion("any", scalarName));
    EXPECT_TRUE(COSTypeRepository::getConversion("any", vectorName)) << "the other one's stays";
    COSTypeRepository::removeConversion("any", vectorName);
    detail::initStringDataTypes();
    EXPECT_TRUE(areRegistered());
}

TEST_F(StringDataTypesTest, DescribeThemselves)
{
    detail::initStringDataTypes();
    std::pair<char const*, char const*> const cases[] = {{scalarName, "fl::ustring"},
                                                         {vectorName, "std::vector<fl::ustring>"}};
    for (auto const& [name, native] : cases) {
        COSDataTypePtr const type(name);
        EXPECT_STREQ(type->scalarTypeName(), name);
        EXPECT_STREQ(type->cppTypeName(), native);
        EXPECT_EQ(type->typeKind(), 7);
        EXPECT_STREQ(type->typeCategory(), "Fundamental");
        EXPECT_FALSE(type->slot11Flag());
    }
}

TEST_F(StringDataTypesTest, ScalarsCompareByTheirText)
{
    detail::initStringDataTypes();
    COSDataTypePtr const type(scalarName);
    struct Case {
        std::optional<std::u16string> a, b;
        std::uint32_t order, reverse;
    };
    Case const cases[] = {{u"ab", u"abc", before, 1},
                          {u"b", u"abc", 1, before},
                          {u"", u"", 0, 0},
                          {u"x", u"x", 0, 0},
                          {u"\xFFFD", u"\xD800\xDC00", 1, before}, // by code unit, not by character
                          {std::u16string(u"a\0b", 3), std::u16string(u"a\0c", 3), before, 1},
                          {{}, u"x", 2, 2},
                          {{}, {}, 0, 0}};
    for (auto const& [a, b, order, reverse] : cases) {
        ArrayPtr const first = a ? characters(*a) : nullptr;
        ArrayPtr const second = b ? strings({*b}) : nullptr;
        EXPECT_EQ(type->compareValues(valueOf(first), valueOf(second)), order);
        EXPECT_EQ(type->compareValues(valueOf(second), valueOf(first)), reverse);
        EXPECT_EQ(type->isEqualValue(valueOf(first), valueOf(second)), order == 0);
        EXPECT_EQ(type->valueByteSize(valueOf(first)), a ? a->size() * 2 + 2 : 0);
    }
}

TEST_F(StringDataTypesTest, VectorsAreEqualOrNot)
{
    detail::initStringDataTypes();
    COSDataTypePtr const type(vectorName);
    ArrayPtr const a = characters(u"a"), bc = characters(u"bc");
    ArrayPtr const asCells = cells({a.get(), bc.get()}), swapped = cells({bc.get(), a.get()});
    ArrayPtr const asStrings = strings({u"a", {}, u"bc"}), shorter = strings({u"a"}), none = cells({});
    struct Case {
        hvArray *a, *b;
        bool areEqual;
    };
    for (auto const& [first, second, areEqual] :
         {Case{asCells.get(), asStrings.get(), true}, Case{asCells.get(), swapped.get(), false},
          Case{asCells.get(), shorter.get(), false}, Case{nullptr, nullptr, true}, Case{nullptr, none.get(), false}}) {
        EXPECT_EQ(type->isEqualValue(COSValue(first), COSValue(second)), areEqual);
        EXPECT_EQ(type->compareValues(COSValue(first), COSValue(second)), areEqual ? 0u : 2u);
        EXPECT_EQ(type->compareValues(COSValue(second), COSValue(first)), areEqual ? 0u : 2u);
    }
    for (hvArray* const array : {asCells.get(), asStrings.get()})
        EXPECT_EQ(type->valueByteSize(COSValue(array)), 10u);
    EXPECT_EQ(type->valueByteSize(COSValue(none.get())) + type->valueByteSize({}), 0u);
}

TEST_F(StringDataTypesTest, ValuesAreCopiedDeepAndGivenBack)
{
    detail::initStringDataTypes();
    for (char const* const name : {scalarName, vectorName}) {
        COSDataTypePtr const type(name);
        ArrayPtr const original = characters(u"long enough to stand apart");
        COSValue const copy = type->copyValue(valueOf(original));
        EXPECT_NE(additions::getData(copy.array()), additions::getData(original.get()));
        EXPECT_EQ(textOf(copy.array()), textOf(original.get()));
        type->releaseValue(copy);
        EXPECT_TRUE(type->copyValue({}).isEmpty());
        type->releaseValue({});
    }
}

TEST_F(StringDataTypesTest, ConversionsTakeWhatTheyShould)
{
    detail::initStringDataTypes();
    constexpr char const* requireString = "VELMARA:class:RequireString";
    constexpr char const* mustBeCells = "orbis_factory:orbis_factory:must_be_cell_array";
    struct Case {
        ArrayPtr array;
        char const *scalarError, *vectorError;
    };
    Case const cases[] = {{characters(u"a"), "", mustBeCells},
                          {characters(u""), "", mustBeCells},
                          {block(), "", mustBeCells},
                          {strings({u"a"}), "", ""},
                          {strings({{}}), "VELMARA:string:MissingNotSupported", ""},
                          {strings({u"a", u"b"}), requireString, ""},
                          {cells({nullptr}), requireString, ""},
                          {numbers(1), requireString, mustBeCells},
                          {nullptr, "", ""}};
    int row = 0;
    for (auto const& [array, scalarError, vectorError] : cases) {
        for (auto const& [type, error] : {std::pair(scalarName, scalarError), std::pair(vectorName, vectorError)}) {
            ArrayPtr made;
            EXPECT_EQ(messageIdOf([&, t = type] { made = converted(t, array.get()); }), error) << type << row;
            EXPECT_EQ(made != nullptr, array && !*error) << type << row;
            EXPECT_NE(converted(type, array.get(), true), array) << "a copy of its own";
        }
        ++row;
    }
    ArrayPtr const large = characters(std::u16string(1000, u'x'));
    for (bool const toHost : {false, true})
        EXPECT_EQ(additions::getData(converted(scalarName, large.get(), toHost).get()),
                  additions::getData(large.get()));
    ArrayPtr const text = converted(scalarName, nullptr, true), none = converted(vectorName, nullptr, true);
    EXPECT_EQ(textOf(text.get()), u"");
    EXPECT_EQ(velmara::className(none.get()), "cell");
    EXPECT_EQ(none->get_dimensions()[0] + none->get_dimensions()[1], 0u);
}

} // namespace
