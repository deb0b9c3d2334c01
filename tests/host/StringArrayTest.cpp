#include "HvmTest.hpp"

#include "libkwi18n/libkwi18n.hpp"
#include "orbis/COSDataType.hpp"
#include "orbis/COSDataTypePtr.hpp"
#include "orbis/COSTypeConversion.hpp"
#include "orbis/COSTypeRepository.hpp"
#include "string_matrix/string_matrix.hpp"

#include <functional>

using namespace std::string_literals;
using namespace orbis::host_extensions;
using Tarnwick::String;
using velmara::ArrayPtr;

namespace {

constexpr char16_t const* missing = nullptr;

/// Texts shorter and longer than an element's inline storage.
std::u16string const texts[] = {
    u"",
    u"x",
    u"zero\0inside"s,
    u"\xD83D\xDE00\xD800",
    u"fourteen units",
    u"fifteen units..",
    std::u16string(1000, u'\xE4'),
};

ArrayPtr stringsOf(std::size_t rows, std::size_t columns)
{
    ArrayPtr strings(createStringMatrix(rows, columns));
    for (std::size_t i = 0; i < strings->get_number_of_elements(); ++i)
        setString(strings.get(), i, texts[i % std::size(texts)]);
    return strings;
}

std::u16string textAt(ArrayPtr const& strings, std::size_t index)
{
    auto const& view = String::getString(strings.get());
    if (view.isMissing(index)) {
        EXPECT_EQ(view.getText(index), missing);
        EXPECT_EQ(view.getLength(index), 0u);
        return u"(missing)";
    }
    EXPECT_EQ(view.getText(index)[view.getLength(index)], u'\0');
    EXPECT_EQ(view.getElement(index), view.getText(index));
    return {view.getText(index), view.getLength(index)};
}

void expectTexts(ArrayPtr const& strings)
{
    for (std::size_t i = 0; i < String::getString(strings.get()).getNumberOfElements(); ++i)
        EXPECT_EQ(textAt(strings, i), texts[i % std::size(texts)]) << i;
}

} // namespace

using StringArrayTest = HvmTest;

TEST_F(StringArrayTest, ElementsAreTextOrMissing)
{
    for (auto const& [rows, columns] : {std::pair(0, 0), {0, 3}, {1, 1}, {7, 2}}) {
        ArrayPtr const strings(createStringMatrix(rows, columns));
        EXPECT_TRUE(String::isString(strings.get()));
        EXPECT_TRUE(hvIsA(strings.get(), "string"));
        EXPECT_FALSE(hvIsA(strings.get(), "char"));
        EXPECT_EQ(strings->_get_class_id_non_trivial(), hvSTRING_CLASS);
        EXPECT_EQ(strings->get_dimensions()[1], std::size_t(columns));
        ASSERT_EQ(String::getString(strings.get()).getNumberOfElements(), std::size_t(rows * columns));
        for (std::size_t i = 0; i < strings->get_number_of_elements(); ++i)
            EXPECT_EQ(textAt(strings, i), u"(missing)");
        expectTexts(stringsOf(rows, columns));
    }
    ArrayPtr const strings = stringsOf(1, 7);
    for (std::size_t from = 0; from < 7; ++from) { // an element's own text, also one that is replaced
        setString(strings.get(), 2, String::getString(strings.get()).getText(from));
        setString(strings.get(), 2, textAt(strings, 2));
    }
    EXPECT_EQ(textAt(strings, 2), texts[6]);
    setMissing(strings.get(), 6);
    EXPECT_EQ(textAt(strings, 6), u"(missing)");
}

TEST_F(StringArrayTest, CopiesPartWhenOneIsWritten)
{
    ArrayPtr first = stringsOf(2, 7);
    ArrayPtr const shared(hvCreateSharedDataCopy(first.get()));
    ArrayPtr const deep(hvCreateDeepCopy(first.get()));
    ArrayPtr const cells(hvCreateCellMatrix(1, 2));
    hvSetCell(cells.get(), 0, hvCreateSharedCopyNotOnArrayList(first.get()));
    ArrayPtr const deepCells(hvCreateDeepCopy(cells.get()));
    auto const at6 = [](hvArray_tag const* strings) { return String::getString(strings).getText(6); };
    EXPECT_EQ(at6(shared.get()), at6(first.get()));
    EXPECT_NE(at6(deep.get()), at6(first.get()));
    EXPECT_NE(at6(getCell(deepCells.get(), 0)), at6(first.get()));
    orbis::COSDataTypePtr const any("any");
    auto const isSame = [&] { return any->isEqualValue(orbis::COSValue(first.get()), orbis::COSValue(deep.get())); };
    EXPECT_TRUE(isSame());
    setMissing(first.get(), 0); // which had an empty text
    EXPECT_FALSE(isSame());
    setString(first.get(), 0, u"");
    setString(first.get(), 6, u"written");
    EXPECT_FALSE(isSame());
    setMissing(first.get(), 0);
    EXPECT_EQ(any->valueByteSize(orbis::COSValue(deep.get())) - any->valueByteSize(orbis::COSValue(first.get())),
              2 * (0 + 1) + 2 * (1000 - 7));
    EXPECT_EQ(textAt(first, 6), u"written");
    EXPECT_EQ(textAt(first, 13), texts[6]);
    first.reset();
    expectTexts(shared);
    expectTexts(deep);
    expectTexts(ArrayPtr(hvCreateSharedDataCopy(getCell(deepCells.get(), 0))));
    EXPECT_EQ(velmara::liveCounts().arrays, 6);
}

TEST_F(StringArrayTest, WrongArgumentsAreRefusedByName)
{
    ArrayPtr const strings = stringsOf(1, 2);
    ArrayPtr const cells(hvCreateCellMatrix(1, 2));
    setMissing(strings.get(), 1);
    auto const& view = String::getString(strings.get());
    std::pair<char const*, std::function<void()>> const calls[] = {
        {"VELMARA:array:null", [&] { String::getString(nullptr); }},
        {"VELMARA:array:null", [&] { setString(nullptr, 0, u""); }},
        {"VELMARA:array:notString", [&] { String::getString(cells.get()); }},
        {"VELMARA:array:notString", [&] { setString(cells.get(), 0, u""); }},
        {"VELMARA:array:notString", [&] { setMissing(cells.get(), 0); }},
        {"VELMARA:array:notCell", [&] { getCell(strings.get(), 0); }},
        {"VELMARA:array:index", [&] { setString(strings.get(), 2, u""); }},
        {"VELMARA:array:index", [&] { setMissing(strings.get(), SIZE_MAX); }},
        {"VELMARA:array:index", [&] { view.isMissing(2); }},
        {"VELMARA:array:index", [&] { view.getElement(2); }},
        {"VELMARA:string:MissingNotSupported", [&] { view.getElement(1); }},
    };
    for (std::size_t index = 0; index < std::size(calls); ++index)
        EXPECT_EQ(messageIdOf(calls[index].second), calls[index].first) << "call " << index;
    EXPECT_FALSE(String::isString(nullptr));
    EXPECT_FALSE(String::isString(cells.get()));
    EXPECT_EQ(getData(strings.get()), nullptr);
    EXPECT_EQ(hvArrayToString(strings.get()), nullptr);
    EXPECT_THROW(createStringMatrix(SIZE_MAX, 2), std::bad_alloc);
}

TEST_F(StringArrayTest, AnyArrayOfOneTextConvertsToUnicodeString)
{
    orbis::COSTypeConversion* const conversion = orbis::COSTypeRepository::getConversion("any", "unicodeString");
    ASSERT_NE(conversion, nullptr);
    auto const textOf = [&](ArrayPtr const& array) {
        hvArray_tag* value = nullptr;
        conversion->convertFromHost(&value, array.get());
        std::unique_ptr<fl::ustring> const text(reinterpret_cast<fl::ustring*>(value));
        hvArray_tag* back = nullptr;
        conversion->convertToHost(&back, value);
        ArrayPtr const owned(back);
        std::u16string const again(static_cast<char16_t const*>(getData(back)), back->get_number_of_elements());
        EXPECT_EQ(again, *text);
        return *text;
    };
    for (std::u16string const& text : texts) {
        EXPECT_EQ(textOf(ArrayPtr(createText(text))), text);
        ArrayPtr const scalar(createStringMatrix(1, 1));
        setString(scalar.get(), 0, text);
        EXPECT_EQ(textOf(scalar), text);
    }
    ArrayPtr const empty(createMatrix(0, 5, hvCHAR_CLASS));
    EXPECT_EQ(textOf(empty), u"");
    std::pair<char const*, ArrayPtr> const refused[] = {
        {"VELMARA:class:RequireString", number(1)},
        {"VELMARA:class:RequireString", ArrayPtr(createMatrix(2, 1, hvCHAR_CLASS))},
        {"VELMARA:class:RequireString", ArrayPtr(hvCreateCellMatrix(1, 1))},
        {"VELMARA:class:RequireString", ArrayPtr(createStringMatrix(1, 2))},
        {"VELMARA:class:RequireString", ArrayPtr(createStringMatrix(0, 0))},
        {"VELMARA:string:MissingNotSupported", ArrayPtr(createStringMatrix(1, 1))},
        {"VELMARA:array:null", nullptr},
    };
    for (auto const& [identifier, array] : refused)
        EXPECT_EQ(messageIdOf([&] { textOf(array); }), identifier);
}

TEST_F(StringArrayTest, UnicodeStringIsTheHostsOwn)
{
    using orbis::COSTypeRepository;
    orbis::COSDataType& type = *orbis::COSDataTypePtr("unicodeString");
    COSTypeRepository::removeConversion("any", "unicodeString");
    COSTypeRepository::removeGlobalType("unicodeString");
    ASSERT_EQ(static_cast<orbis::COSDataType*>(orbis::COSDataTypePtr("unicodeString")), &type);
    ASSERT_NE(COSTypeRepository::getConversion("any", "unicodeString"), nullptr);
    auto const value = [](fl::ustring& text) { return orbis::COSValue(reinterpret_cast<hvArray_tag*>(&text)); };
    fl::ustring a = u"ab", b = u"abc";
    EXPECT_EQ(type.compareValues(value(a), value(b)), 0xFFFFFFFF);
    EXPECT_EQ(type.compareValues(value(b), value(a)), 1u);
    EXPECT_EQ(type.compareValues(value(a), {}), 2u);
    EXPECT_TRUE(type.isEqualValue({}, {}));
    EXPECT_EQ(type.valueByteSize(value(b)), 8u);
    orbis::COSValue const copy = type.copyValue(value(a));
    EXPECT_TRUE(type.isEqualValue(copy, value(a)));
    type.releaseValue(copy);
    type.releaseValue(type.copyValue({}));
}
