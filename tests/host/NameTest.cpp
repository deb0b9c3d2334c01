#include "orbis/COSNameID.hpp"
#include "velmara/LiveCounts.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <thread>
#include <vector>

using orbis::COSNameID;
using orbis::InternedName;

namespace {

std::vector<InternedName const*> internAll(std::string const& prefix, int count)
{
    std::vector<InternedName const*> names;
    for (int i = 0; i < count; ++i)
        names.push_back(COSNameID((prefix + std::to_string(i)).c_str()).interned());
    return names;
}

} // namespace

// Each length, with texts that differ in one byte only, at each place; the texts end where their memory ends.
TEST(NameTest, EqualTextsAreOneNameAndOthersAreNot)
{
    std::set<InternedName const*> names;
    std::size_t expected = 0;
    for (std::size_t length = 0; length <= 35; ++length) {
        std::string text(length, 'a');
        for (std::size_t place = 0; place <= length; ++place, ++expected) {
            if (place > 0)
                text[place - 1] = 'b';
            std::vector<char> const exact(text.c_str(), text.c_str() + length + 1);
            COSNameID const name(exact.data());
            EXPECT_TRUE(name == COSNameID(text.c_str()));
            EXPECT_EQ(static_cast<orbis::COSString>(name).c_str(), text);
            names.insert(name.interned());
        }
    }
    EXPECT_EQ(names.size(), expected);
    EXPECT_TRUE(COSNameID(nullptr) == COSNameID(""));
}

TEST(NameTest, TextThatChangesAtOneAddressIsAnotherName)
{
    for (char const* const text : {"NameTest.first", "NameTest.second", "NameTest.first", "NameTest.f", ""}) {
        static char buffer[32];
        std::string(text).copy(buffer, sizeof buffer - 1);
        buffer[std::string(text).size()] = 0;
        EXPECT_TRUE(COSNameID(buffer) == COSNameID(text)) << text;
    }
}

TEST(NameTest, CountsNamesThatAreHeld)
{
    {
        COSNameID first("NameTest.held");
        COSNameID const second(first);
        COSNameID third("NameTest.other");
        EXPECT_EQ(velmara::liveCounts().heldNames, 3);
        third = second;
        EXPECT_TRUE(third == first);
        EXPECT_EQ(velmara::liveCounts().heldNames, 3);
    }
    EXPECT_EQ(velmara::liveCounts().heldNames, 0);
}

TEST(NameTest, ThreadsAgreeOnNamesWhileTheTableGrows)
{
    constexpr int count = 20000;
    std::vector<std::vector<InternedName const*>> names(4);
    std::vector<std::thread> threads;
    for (auto& own : names)
        threads.emplace_back([&own] { own = internAll("NameTest.shared", count); });
    for (std::thread& thread : threads)
        thread.join();
    for (auto const& own : names)
        EXPECT_EQ(own, names.front());
    EXPECT_EQ(internAll("NameTest.shared", count), names.front());
    EXPECT_EQ(std::set(names.front().begin(), names.front().end()).size(), std::size_t(count));
}

TEST(NameTest, CountsAreExactAcrossThreads)
{
    std::vector<COSNameID> names;
    for (int round = 0; round < 20; ++round)
        std::thread([&] { names.emplace_back("NameTest.made"); }).join();
    EXPECT_EQ(velmara::liveCounts().heldNames, 20);
    std::thread([&] { names.clear(); }).join();
    EXPECT_EQ(velmara::liveCounts().heldNames, 0);
}
