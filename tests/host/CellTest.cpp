#include "HvmTest.hpp"

using orbis::host_extensions::createMatrix;
using orbis::host_extensions::getCell;
using orbis::host_extensions::getData;
using velmara::ArrayPtr;
using velmara::liveCounts;
using CellTest = HvmTest;

namespace {

ArrayPtr cellOf(ArrayPtr value)
{
    ArrayPtr cell(hvCreateCellMatrix(1, 1));
    hvSetCell(cell.get(), 0, value.release());
    return cell;
}

ArrayPtr nest(int depth, ArrayPtr innermost)
{
    for (int i = 0; i < depth; ++i)
        innermost = cellOf(std::move(innermost));
    return innermost;
}

} // namespace

TEST_F(CellTest, CellsOwnWhatIsStored)
{
    ArrayPtr const cells(hvCreateCellMatrix(2, 2));
    EXPECT_EQ(getCell(cells.get(), 3), nullptr);
    hvArray* const value = createMatrix(1, 1, hvDOUBLE_CLASS);
    hvSetCell(cells.get(), 3, value);
    EXPECT_EQ(getCell(cells.get(), 3), value);
    hvSetCell(cells.get(), 3, value); // nothing new is handed over
    EXPECT_EQ(getCell(cells.get(), 3), value);
    EXPECT_EQ(liveCounts().arrays, 2);
    hvSetCell(cells.get(), 3, createMatrix(1, 1, hvDOUBLE_CLASS));
    EXPECT_EQ(liveCounts().arrays, 2);
    hvSetCell(cells.get(), 3, nullptr);
    EXPECT_EQ(liveCounts().arrays, 1);
}

TEST_F(CellTest, WhatBelongsToACellIsNotStoredAgain)
{
    ArrayPtr cells(hvCreateCellMatrix(1, 2));
    ArrayPtr const value(createMatrix(1, 1, hvDOUBLE_CLASS));
    auto const storeOwned = [&](ArrayPtr const& into) {
        value->add_reference();
        hvSetCell(into.get(), 0, value.get());
    };
    storeOwned(cells);
    hvSetCell(cells.get(), 0, nullptr);
    storeOwned(cells);
    cells.reset(hvCreateCellMatrix(1, 2));
    hvSetCell(cells.get(), 0, value.get()); // hands the test's own reference over
    EXPECT_EQ(messageIdOf([&] { hvSetCell(cells.get(), 1, value.get()); }), "VELMARA:array:alreadyStored");
    ArrayPtr const copy(hvCreateDeepCopy(cells.get()));
    auto* const copied = const_cast<hvArray*>(getCell(copy.get(), 0));
    EXPECT_EQ(messageIdOf([&] { hvSetCell(cells.get(), 1, copied); }), "VELMARA:array:alreadyStored");
    value->add_reference(); // which the test's owner releases
}

TEST_F(CellTest, NoCellContainsItself)
{
    ArrayPtr const outer(hvCreateCellMatrix(1, 2));
    hvArray* const inner = hvCreateCellMatrix(1, 1);
    hvSetCell(outer.get(), 0, cellOf(ArrayPtr(inner)).release());
    EXPECT_EQ(messageIdOf([&] { hvSetCell(outer.get(), 1, outer.get()); }), "VELMARA:array:cycle");
    EXPECT_EQ(messageIdOf([&] { hvSetCell(inner, 0, outer.get()); }), "VELMARA:array:cycle");
    EXPECT_EQ(getCell(inner, 0), nullptr);
    // A copy is another array, so it may be stored.
    hvSetCell(outer.get(), 1, hvCreateSharedDataCopy(outer.get()));
    EXPECT_EQ(getCell(getCell(outer.get(), 1), 1), nullptr);
}

TEST_F(CellTest, CopiesPartWhenOneIsWritten)
{
    ArrayPtr const first = cellOf(ArrayPtr(createMatrix(3, 3, hvDOUBLE_CLASS)));
    ArrayPtr const shared(hvCreateSharedDataCopy(first.get()));
    ArrayPtr const deep(hvCreateDeepCopy(first.get()));
    EXPECT_EQ(getCell(shared.get(), 0), getCell(first.get(), 0));
    EXPECT_NE(getData(getCell(deep.get(), 0)), getData(getCell(first.get(), 0)));
    EXPECT_EQ(liveCounts().arrays, 5);
    hvSetCell(first.get(), 0, nullptr);
    EXPECT_EQ(getCell(shared.get(), 0)->get_number_of_elements(), 9u);
    hvSetCell(shared.get(), 0, nullptr);
    EXPECT_EQ(getCell(deep.get(), 0)->get_number_of_elements(), 9u);
    EXPECT_EQ(liveCounts().arrays, 4);
}

TEST_F(CellTest, DeepNestsAreCopiedSearchedAndFreed)
{
    constexpr int depth = 300000;
    hvArray* const innermost = hvCreateCellMatrix(1, 1);
    ArrayPtr outer = nest(depth, ArrayPtr(innermost));
    EXPECT_EQ(messageIdOf([&] { hvSetCell(innermost, 0, outer.get()); }), "VELMARA:array:cycle");
    ArrayPtr const copy(hvCreateDeepCopy(outer.get()));
    EXPECT_EQ(liveCounts().arrays, 2 * (depth + 1));
    outer.reset();
    EXPECT_EQ(liveCounts().arrays, depth + 1);
}

// Each level holds the one below twice: 2^60 ways lead to the bottom.
TEST_F(CellTest, SharedNestsAreCopiedOnce)
{
    ArrayPtr top(createMatrix(10, 10, hvDOUBLE_CLASS));
    for (int i = 0; i < 60; ++i) {
        ArrayPtr next(hvCreateCellMatrix(1, 2));
        hvSetCell(next.get(), 0, hvCreateSharedDataCopy(top.get()));
        hvSetCell(next.get(), 1, top.release());
        top = std::move(next);
    }
    ArrayPtr const copy(hvCreateDeepCopy(top.get()));
    EXPECT_EQ(liveCounts().arrays, 2 * 121);
    hvArray_tag const *original = top.get(), *copied = copy.get();
    for (; hvIsA(original, "cell"); original = getCell(original, 1), copied = getCell(copied, 0))
        EXPECT_NE(getCell(original, 0), getCell(copied, 0));
    EXPECT_NE(getData(original), getData(copied));
}
