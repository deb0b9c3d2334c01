#include "HvmTest.hpp"
#include "library/texts.hpp"

#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/initStringDataTypes.hpp"

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

/// How many data types and conversions of strings are registered.
int registered()
{
    int count = 0;
    for (char const* const name : {scalarName, vectorName})
        count += (COSDataTypePtr(name) != nullptr) + (COSTypeRepository::getConversion("any", name) != nullptr);
    return count;
}

/// What a conversion makes of an array in one direction.
ArrayPtr converted(char const* type, hvArray* array, bool toHost)
{
    COSTypeConversion* const conversion = COSTypeRepository::getConversion("any", type);
    auto* out = reinterpret_cast<hvArray*>(conversion); // is written in any case
    toHost ? conversion->convertToHost(&out, array) : conversion->convertFromHost(&out, array);
    return ArrayPtr(out);
}

struct Header : hvArray_tag {
    static constexpr auto flags = &Header::flags_;
};

using StringDataTypesTest = HvmTest;

TEST_F(StringDataTypesTest, AreRegisteredOncePerVirtualMachine)
{
    auto const before = velmara::liveCounts().descriptors;
    for (int i = 0; i < 2; ++i) {
        detail::initStringDataTypes();
        EXPECT_EQ(registered(), 4);
        EXPECT_EQ(velmara::liveCounts().descriptors, before + 4);
    }
    velmara::Hvm other;
    velmara::Hvm::Scope const scope(other);
    EXPECT_EQ(registered(), 0);
}

/// While the first one is created, another one is created and stored.
struct Overtaken {
    Overtaken()
    {
        if (++alive == 1)
            basic::HvmScoped<Overtaken>::get();
    }
    ~Overtaken() { --alive; }

    inline static int alive = 0;
};

TEST_F(StringDataTypesTest, TheOvertakenOneIsDestroyed)
{
    Overtaken const& stored = basic::HvmScoped<Overtaken>::get();
    EXPECT_EQ(Overtaken::alive, 1);
    EXPECT_EQ(&stored, &basic::HvmScoped<Overtaken>::get());
}

TEST_F(StringDataTypesTest, AFailureOnTheWayRegistersNothing)
{
    class Blocker final : public COSTypeConversion {
        void convertToHost(hvArray**, hvArray*) override {}
        void convertFromHost(hvArray**, hvArray*) override {}
    };
    COSTypeRepository::addConversion("any", vectorName, new Blocker);
    EXPECT_EQ(messageIdOf(detail::initStringDataTypes), "VELMARA:type:duplicateConversion");
    EXPECT_EQ(registered(), 1) << "the blocker stays";
    COSTypeRepository::removeConversion("any", vectorName);
    detail::initStringDataTypes();
    EXPECT_EQ(registered(), 4);
}

TEST_F(StringDataTypesTest, ValuesCompareByTheirTexts)
{
    detail::initStringDataTypes();
    constexpr std::uint32_t before = 4294967295;
    ArrayPtr const a = characters(u"a"), ab = characters(u"ab"), abc = strings({u"abc"}), b = characters(u"b"),
                   zeroB = characters({u"a\0b", 3}), zeroC = strings({{{u"a\0c", 3}}}), wide = characters(u"\xFFFD"),
                   pair = strings({u"\xD800\xDC00"}), same = strings({u"ab"}), listed = cells({a.get(), ab.get()}),
                   reversed = cells({ab.get(), a.get()}), sparse = strings({u"a", {}, u"ab"}), none = strings({});
    ArrayPtr const null;
    using Case = std::tuple<char const*, ArrayPtr const&, ArrayPtr const&, std::uint32_t, std::uint32_t, std::size_t>;
    for (auto const& [name, left, right, order, reverse, bytes] :
         {Case{scalarName, ab, abc, before, 1, 6}, Case{scalarName, b, abc, 1, before, 4},
          Case{scalarName, zeroB, zeroC, before, 1, 8}, Case{scalarName, same, ab, 0, 0, 6},
          Case{scalarName, wide, pair, 1, before, 4}, // by code unit, not by character
          Case{scalarName, null, ab, 2, 2, 0}, Case{scalarName, null, null, 0, 0, 0},
          Case{vectorName, listed, sparse, 0, 0, 10}, Case{vectorName, listed, reversed, 2, 2, 10},
          Case{vectorName, abc, sparse, 2, 2, 8}, Case{vectorName, null, none, 2, 2, 0},
          Case{vectorName, null, null, 0, 0, 0}}) {
        COSDataTypePtr const type(name);
        COSValue const x(left.get()), y(right.get());
        EXPECT_EQ(type->compareValues(x, y), order);
        EXPECT_EQ(type->compareValues(y, x), reverse);
        EXPECT_EQ(type->isEqualValue(x, y), order == 0);
        EXPECT_EQ(type->valueByteSize(x), bytes);
        COSValue const copy = type->copyValue(x);
        EXPECT_TRUE(type->isEqualValue(copy, x));
        EXPECT_EQ(copy.array() == nullptr, x.array() == nullptr);
        type->releaseValue(copy);
    }
    for (auto const& [name, native] :
         {std::pair(scalarName, "fl::ustring"), {vectorName, "std::vector<fl::ustring>"}}) {
        COSDataTypePtr const type(name);
        EXPECT_EQ(type->cppTypeName() + std::string(type->typeCategory()), native + std::string("Fundamental"));
        EXPECT_EQ(type->typeKind(), 7);
        EXPECT_FALSE(type->slot11Flag());
    }
}

TEST_F(StringDataTypesTest, ConversionsAcceptTheirClassesAndShareData)
{
    detail::initStringDataTypes();
    constexpr char const* requireString = "VELMARA:class:RequireString";
    constexpr char const* mustBeCells = "orbis_factory:orbis_factory:must_be_cell_array";
    using Case = std::tuple<ArrayPtr, char const*, char const*>;
    for (auto const& [array, scalarError, vectorError] :
         {Case{characters(std::u16string(1000, u'x')), "", mustBeCells}, Case{strings({u"a"}), "", ""},
          Case{strings({{}}), "VELMARA:string:MissingNotSupported", ""}, Case{strings({u"a", u"b"}), requireString, ""},
          Case{cells({nullptr}), requireString, ""}, Case{number(1), requireString, mustBeCells}}) {
        for (auto const& [type, error] : {std::pair(scalarName, scalarError), {vectorName, vectorError}}) {
            ArrayPtr made;
            EXPECT_EQ(messageIdOf([&, t = type] { made = converted(t, array.get(), false); }), error);
            EXPECT_NE(made, array);
            ArrayPtr const back = converted(type, array.get(), true);
            EXPECT_NE(back, array);
            if (made && textOf(array).size() == 1000) {
                EXPECT_EQ(host_extensions::getData(made.get()), host_extensions::getData(array.get()));
                EXPECT_EQ(host_extensions::getData(back.get()), host_extensions::getData(array.get()));
                ArrayPtr const copy(COSDataTypePtr(type)->copyValue(COSValue(array.get())).array());
                EXPECT_NE(host_extensions::getData(copy.get()), host_extensions::getData(array.get()))
                    << "values stand apart";
                EXPECT_EQ(copy.get()->*Header::flags & 0x200U, 0U) << "nor are they a call's temporaries";
            }
        }
    }
    EXPECT_EQ(converted(scalarName, nullptr, false), nullptr);
    EXPECT_EQ(converted(vectorName, nullptr, false), nullptr);
    EXPECT_EQ(textOf(converted(scalarName, nullptr, true)), u"");
    ArrayPtr const none = converted(vectorName, nullptr, true);
    EXPECT_EQ(velmara::className(none.get()), "cell");
    EXPECT_EQ(none->get_dimensions()[0] + none->get_dimensions()[1], 0u);
}

} // namespace
