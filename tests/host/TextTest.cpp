#include "HvmTest.hpp"

#include "libkwfl/IUserException.hpp"
#include "libkwi18n/libkwi18n.hpp"
#include "libut/libut.hpp"

#include <cstdio>
#include <cstdlib>
#include <thread>
#include <tuple>
#include <vector>

using namespace std::string_literals;
using fl::i18n::to_string;
using fl::i18n::to_ustring;

using TextArrayTest = HvmTest;

namespace {

std::string taken(char* text, void (*release)(void*))
{
    std::string const copy = text ? text : "(none)";
    release(text);
    return copy;
}

} // namespace

TEST_F(TextArrayTest, CharacterArraysHoldUtf16)
{
    std::tuple<velmara::ArrayPtr, std::size_t, std::size_t, std::string, std::u16string> const cases[] = {
        {velmara::ArrayPtr(hvCreateString("gr\xC3\xBC\xC3\x9F")), 1, 4, "gr\xC3\xBC\xC3\x9F", u"gr\xFC\xDF"},
        {velmara::ArrayPtr(hvCreateString("a\xFF")), 1, 2, "a\xEF\xBF\xBD", u"a\xFFFD"},
        {velmara::ArrayPtr(hvCreateString_UTF16(u"\xD83D\xDE00")), 1, 2, "\xF0\x9F\x98\x80", u"\xD83D\xDE00"},
        {velmara::ArrayPtr(hvCreateString_UTF16(u"x")), 1, 1, "x", u"x"},
        {velmara::ArrayPtr(hvCreateString("")), 0, 0, "", u""},
        {velmara::ArrayPtr(hvCreateString(nullptr)), 0, 0, "", u""},
        {velmara::ArrayPtr(hvCreateString_UTF16(nullptr)), 0, 0, "", u""},
    };
    for (auto const& [array, rows, columns, utf8, utf16] : cases) {
        EXPECT_EQ(array->_get_class_id_non_trivial(), hvCHAR_CLASS);
        EXPECT_EQ(array->get_dimensions()[0], rows);
        EXPECT_EQ(array->get_dimensions()[1], columns);
        EXPECT_EQ(taken(hvArrayToString(array.get()), hvFreeEx), utf8);
        EXPECT_EQ(taken(hvArray2String(array.get()), hvFree), utf8);
        char16_t* const wide = hvArrayToString_UTF16(array.get());
        EXPECT_EQ(wide, utf16);
        hvFreeEx(wide);
    }
    velmara::ArrayPtr const cell(hvCreateCellMatrix(1, 1));
    EXPECT_EQ(hvArrayToString(cell.get()), nullptr);
    EXPECT_EQ(hvArrayToString_UTF16(cell.get()), nullptr);
    EXPECT_EQ(hvArray2String(nullptr), nullptr);
}

// ASCII is copied in blocks of several sizes: all lengths around them, and what is no ASCII at every place. One
// replacement represents each maximal part that could have begun a character.
TEST_F(TextArrayTest, TextOfEveryLengthIsWholeInBothForms)
{
    std::tuple<std::string, std::u16string, std::string> const others[] = {
        {"", u"", ""},
        {"\x7F\xC2\x80\xDF\xBF", u"\x7F\x80\x7FF", "\x7F\xC2\x80\xDF\xBF"},
        {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\x800\xD7FF\xE000\xFFFF",
         "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {"\xED\xA0\x80", u"\xFFFD\xFFFD\xFFFD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\x80\xC0\xAF", u"\xFFFD\xFFFD\xFFFD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xE0\x80\xF0\x8F", u"\xFFFD\xFFFD\xFFFD\xFFFD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xF4\x90\xF5\xFF", u"\xFFFD\xFFFD\xFFFD\xFFFD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xE2\x82.\xF0\x9F\x98", u"\xFFFD.\xFFFD", "\xEF\xBF\xBD.\xEF\xBF\xBD"},
        {"\xF1\x80\x80\xE1\x80\xC2", u"\xFFFD\xFFFD\xFFFD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xF0\x9F\xC3\xA4", u"\xFFFD\xE4", "\xEF\xBF\xBD\xC3\xA4"}};
    std::string const letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (std::size_t size = 0; size <= letters.size(); ++size) {
        for (std::size_t place = 0; place <= size; ++place) {
            for (auto const& [given, utf16, utf8] : others) {
                std::string const before = letters.substr(0, place), after = letters.substr(place, size - place);
                std::u16string const wide =
                    std::u16string(before.begin(), before.end()) + utf16 + std::u16string(after.begin(), after.end());
                std::string const text = before + given + after;
                EXPECT_EQ(to_ustring(text), wide) << text;
                EXPECT_EQ(to_string(wide), before + utf8 + after);
                velmara::ArrayPtr const array(hvCreateString(text.c_str())), same(hvCreateString_UTF16(wide.c_str()));
                ASSERT_EQ(array->get_number_of_elements(), wide.size());
                EXPECT_EQ(taken(hvArrayToString(same.get()), hvFreeEx), before + utf8 + after);
                std::unique_ptr<char16_t, void (*)(void*)> const copy(hvArrayToString_UTF16(array.get()), hvFreeEx);
                EXPECT_EQ(copy.get(), wide);
            }
        }
    }
    EXPECT_EQ(to_ustring("zero\0inside"s), u"zero\0inside"s);
    EXPECT_EQ(to_string(u"zero\0inside"s), "zero\0inside"s);
    EXPECT_EQ(to_string(u"\xDC00\xD800z\xD800\xD83D\xDE00\xD800"),
              "\xEF\xBF\xBD\xEF\xBF\xBDz\xEF\xBF\xBD\xF0\x9F\x98\x80\xEF\xBF\xBD");
    using foundation::core::except::IUserException;
    EXPECT_EQ(IUserException::convert_str("\xC3\xA4"s), u"\xE4");
    EXPECT_EQ(IUserException::convert_str(u"\xE4"s), "\xC3\xA4");
    EXPECT_EQ(IUserException::ToUstringImpl(nullptr), u"");
}

TEST_F(TextArrayTest, TextsAndArraysAreFreedOnAnyThread)
{
    std::vector<velmara::ArrayPtr> arrays;
    std::vector<char*> copies;
    auto const make = [&] {
        for (int i = 0; i < 3000; ++i) {
            arrays.emplace_back(hvCreateString(std::to_string(i).c_str()));
            copies.push_back(hvArrayToString(arrays.back().get()));
        }
    };
    std::thread(make).join();
    make();
    EXPECT_EQ(velmara::liveCounts().arrays, 6000);
    for (std::size_t i = 0; i < copies.size(); ++i)
        EXPECT_EQ(taken(std::exchange(copies[i], nullptr), hvFreeEx), std::to_string(i % 3000));
    std::thread([&] { arrays.clear(); }).join();
    EXPECT_EQ(velmara::liveCounts().arrays, 0);
    std::thread(make).join(); // in memory that was freed meanwhile
    std::thread([&] {
        for (char* const copy : copies)
            hvFree(copy);
    }).join();
    arrays.clear();
}

TEST(TextTest, OutputIsTheSameOnEachSystem)
{
    testing::internal::CaptureStdout();
    auto* const address = reinterpret_cast<void*>(std::uintptr_t(0xABCDEF12));
    int const printed = utPrintf("%%%15p|%-12p|%3d|%zu|%s|%.1f\n", address, address, 7, sizeof(char), "%p", 0.5);
    std::fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "%     0xabcdef12|0xabcdef12  |  7|1|%p|0.5\n");
    EXPECT_EQ(printed, 43);
    utFree(std::calloc(1, 8));
    utFree(nullptr);
}
