#include "HvmTest.hpp"

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <new>

using orbis::host_extensions::createMatrix;
using orbis::host_extensions::getData;
using orbis::host_extensions::getWritableData;
using velmara::ArrayPtr;
using ArrayTest = HvmTest;

namespace {

struct PlainClass {
    hvClassID id;
    char const* name;
    std::size_t elementSize;
};

constexpr PlainClass plainClasses[] = {
    {hvLOGICAL_CLASS, "logical", sizeof(bool)},
    {hvCHAR_CLASS, "char", sizeof(char16_t)},
    {hvDOUBLE_CLASS, "double", sizeof(double)},
    {hvSINGLE_CLASS, "single", sizeof(float)},
    {hvINT8_CLASS, "int8", 1},
    {hvUINT8_CLASS, "uint8", 1},
    {hvINT16_CLASS, "int16", 2},
    {hvUINT16_CLASS, "uint16", 2},
    {hvINT32_CLASS, "int32", 4},
    {hvUINT32_CLASS, "uint32", 4},
    {hvINT64_CLASS, "int64", 8},
    {hvUINT64_CLASS, "uint64", 8},
};

constexpr std::array<std::size_t, 2> shapes[] = {{0, 0}, {0, 5}, {1, 1}, {3, 1}, {7, 9}};

std::string bytesOf(ArrayPtr const& array, PlainClass const& plain)
{
    return {static_cast<char const*>(getData(array.get())), array->get_number_of_elements() * plain.elementSize};
}

} // namespace

TEST_F(ArrayTest, PlainClassesInEveryShape)
{
    for (PlainClass const& plain : plainClasses) {
        for (auto const [rows, columns] : shapes) {
            SCOPED_TRACE(std::string(plain.name) + ' ' + std::to_string(rows) + ' ' + std::to_string(columns));
            ArrayPtr const array(createMatrix(rows, columns, plain.id));
            EXPECT_EQ(array->_get_class_id_non_trivial(), plain.id);
            EXPECT_EQ(array->get_dimensions()[0], rows);
            EXPECT_EQ(array->get_dimensions()[1], columns);
            ASSERT_EQ(array->get_number_of_elements(), rows * columns);
            EXPECT_TRUE(hvIsA(array.get(), plain.name));
            EXPECT_FALSE(hvIsA(array.get(), "cell"));

            std::string const zeros = bytesOf(array, plain);
            EXPECT_EQ(zeros, std::string(zeros.size(), '\0'));
            ArrayPtr const shared(hvCreateSharedDataCopy(array.get()));
            ArrayPtr const deep(hvCreateDeepCopy(shared.get()));
            std::memset(getWritableData(array.get()), 1, zeros.size());
            EXPECT_EQ(bytesOf(array, plain), std::string(zeros.size(), '\1'));
            EXPECT_EQ(bytesOf(shared, plain), zeros);
            EXPECT_EQ(bytesOf(deep, plain), zeros);
        }
    }
}

TEST_F(ArrayTest, DataIsSharedUntilOneSideWrites)
{
    ArrayPtr first(createMatrix(100, 100, hvDOUBLE_CLASS));
    ArrayPtr const second(hvCreateSharedDataCopy(first.get()));
    ArrayPtr const third(hvCreateSharedCopyNotOnArrayList(second.get()));
    ArrayPtr const deep(hvCreateDeepCopy(first.get()));
    void const* const data = getData(first.get());
    EXPECT_EQ(getData(second.get()), data);
    EXPECT_EQ(getData(third.get()), data);
    EXPECT_NE(getData(deep.get()), data);

    EXPECT_NE(getWritableData(second.get()), data);
    EXPECT_NE(getWritableData(third.get()), data);
    EXPECT_EQ(getWritableData(first.get()), data) << "the last holder writes in place";
    first.reset();
    EXPECT_EQ(static_cast<double const*>(getData(third.get()))[9999], 0.0);
    EXPECT_EQ(velmara::liveCounts().arrays, 3);
}

TEST_F(ArrayTest, EachReferenceIsReleasedOnce)
{
    ArrayPtr array(createMatrix(2, 2, hvINT32_CLASS));
    array->add_reference();
    ArrayPtr const second(array.get());
    array.reset();
    EXPECT_EQ(velmara::liveCounts().arrays, 1);
    EXPECT_EQ(second->get_number_of_elements(), 4u);
    hvDestroyArray(nullptr);
}

TEST_F(ArrayTest, SizesThatCannotBeAreRefused)
{
    constexpr std::size_t most = SIZE_MAX;
    std::array<std::size_t, 2> const tooLarge[] = {
        {most, 2}, {most / 2 + 1, 2}, {most / 8, 1}, {most / 8 + 1, 1}, {std::size_t(1) << 32, std::size_t(1) << 32}};
    for (auto const [rows, columns] : tooLarge) {
        EXPECT_THROW(createMatrix(rows, columns, hvDOUBLE_CLASS), std::bad_alloc);
        EXPECT_THROW(hvCreateCellMatrix(rows, columns), std::bad_alloc);
        EXPECT_THROW(orbis::omCreateORBISMatrix(rows, columns, "ArrayTest.any"), std::bad_alloc);
    }
    ArrayPtr const empty(createMatrix(most, 0, hvDOUBLE_CLASS));
    EXPECT_EQ(empty->get_number_of_elements(), 0u);
    EXPECT_EQ(empty->get_dimensions()[0], most);
}

TEST_F(ArrayTest, WrongArgumentsAreRefusedByName)
{
    ArrayPtr const cells(hvCreateCellMatrix(1, 2));
    ArrayPtr const number(createMatrix(1, 2, hvDOUBLE_CLASS));
    ArrayPtr const objects(orbis::omCreateORBISMatrix(1, 2, "ArrayTest.any"));
    hvArray* const none = nullptr;
    std::pair<char const*, std::function<void()>> const calls[] = {
        {"VELMARA:array:null", [&] { getData(none); }},
        {"VELMARA:array:null", [&] { getWritableData(none); }},
        {"VELMARA:array:null", [&] { hvSetCell(none, 0, number.get()); }},
        {"VELMARA:array:null", [&] { hvCreateDeepCopy(none); }},
        {"VELMARA:array:null", [&] { hvCreateSharedDataCopy(none); }},
        {"VELMARA:array:null", [&] { hvSetArrayScope(none, 0); }},
        {"VELMARA:array:null", [&] { orbis::omGetArrayElement(none, 0); }},
        {"VELMARA:array:null", [&] { orbis::omSetClassOfHeterogeneousArray(none); }},
        {"VELMARA:array:scope", [&] { hvSetArrayScope(number.get(), 2); }},
        {"VELMARA:array:notNumeric", [&] { createMatrix(1, 1, hvCELL_CLASS); }},
        {"VELMARA:array:notNumeric", [&] { createMatrix(1, 1, hvSTRING_CLASS); }},
        {"VELMARA:array:notNumeric", [&] { createMatrix(1, 1, hvClassID(99)); }},
        {"VELMARA:array:notCell", [&] { hvSetCell(number.get(), 0, nullptr); }},
        {"VELMARA:array:notCell", [&] { orbis::host_extensions::getCell(objects.get(), 0); }},
        {"VELMARA:array:index", [&] { hvSetCell(cells.get(), 2, number.get()); }},
        {"VELMARA:array:index", [&] { orbis::host_extensions::getCell(cells.get(), SIZE_MAX); }},
        {"VELMARA:array:notObject", [&] { orbis::omGetArrayElement(cells.get(), 0); }},
        {"VELMARA:array:notObject", [&] { orbis::omSetArrayElement(number.get(), 0, nullptr); }},
        {"VELMARA:array:notObject", [&] { orbis::omSetClassOfHeterogeneousArray(cells.get()); }},
        {"VELMARA:array:index", [&] { orbis::cosiGetArrayElement(objects.get(), 2); }},
        {"VELMARA:array:index", [&] { orbis::omSetArrayElement(objects.get(), 2, nullptr); }},
    };
    for (std::size_t index = 0; index < std::size(calls); ++index)
        EXPECT_EQ(messageIdOf(calls[index].second), calls[index].first) << "call " << index;
    EXPECT_EQ(getData(cells.get()), nullptr);
    EXPECT_EQ(getWritableData(objects.get()), nullptr);
    EXPECT_FALSE(hvIsA(none, "double"));
    EXPECT_FALSE(orbis::omIsORBIS(none));
    EXPECT_TRUE(orbis::omIsORBIS(objects.get()));
}
