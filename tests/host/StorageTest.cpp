#include "HvmTest.hpp"

#include "libkwfoundation_usm/Detail.hpp"

#include <functional>
#include <thread>

namespace {

using Storage = foundation::usm::Detail<foundation::usm::scope::Hvm>;

struct Value {
    std::string name;
    std::string* log;
    std::function<void()> whenDestroyed = [] {};
};

Storage::Holder holder(Value value)
{
    return {new Value(std::move(value)), [](void* memory) {
                std::unique_ptr<Value> const ending(static_cast<Value*>(memory));
                *ending->log += ending->name;
                ending->whenDestroyed();
            }};
}

std::string nameOf(Storage::Holder const* found)
{
    return found ? static_cast<Value*>(found->get())->name : "";
}

class StorageTest : public HvmTest {
protected:
    std::uint64_t const id_ = Storage::getNextID(typeid(Value));
    std::uint64_t const otherID_ = Storage::getNextID(typeid(Value));
    std::type_info const& type_ = typeid(Value);
    std::string log_;
};

} // namespace

TEST_F(StorageTest, ValuesAreKnownByIdAndType)
{
    EXPECT_NE(id_, otherID_);
    EXPECT_EQ(Storage::find(id_, type_), nullptr);
    Storage::Holder& first = Storage::insert(id_, type_, holder({"a", &log_}));
    Storage::insert(id_, typeid(int), holder({"b", &log_}));
    Storage::insert(otherID_, type_, holder({"c", &log_}));
    for (int i = 0; i < 100; ++i) // many more do not move what is stored
        Storage::insert(Storage::getNextID(type_), type_, holder({".", &log_}));
    EXPECT_EQ(Storage::find(id_, type_), &first);
    EXPECT_EQ(nameOf(Storage::find(id_, type_)) + nameOf(Storage::find(id_, typeid(int))), "ab");
    EXPECT_EQ(nameOf(Storage::find(otherID_, type_)), "c");
    EXPECT_EQ(Storage::find(otherID_, typeid(int)), nullptr);
    EXPECT_TRUE(Storage::erase(id_, type_));
    EXPECT_FALSE(Storage::erase(id_, type_));
    EXPECT_EQ(log_, "a");
    EXPECT_EQ(nameOf(Storage::find(id_, typeid(int))), "b");
}

TEST_F(StorageTest, FindOrInsertKeepsTheFirstAndInsertReplaces)
{
    Storage::findOrInsert(id_, type_, holder({"a", &log_}));
    Storage::Holder late = holder({"b", &log_});
    EXPECT_EQ(nameOf(&Storage::findOrInsert(id_, type_, std::move(late))), "a");
    EXPECT_EQ(nameOf(&late), "b");
    EXPECT_EQ(nameOf(&Storage::insert(id_, type_, std::move(late))), "b");
    EXPECT_EQ(log_, "a");
    EXPECT_EQ(nameOf(&Storage::insert(id_, type_, std::move(*Storage::find(id_, type_)))), "b");
    EXPECT_EQ(log_, "a");
}

TEST_F(StorageTest, ValuesAreDestroyedInReverseOrderAndNotFoundThen)
{
    auto const noteFound = [this] {
        log_ += '(' + nameOf(Storage::find(id_, type_)) + nameOf(Storage::find(otherID_, type_)) +
                (Storage::isRequiredContextActive() ? "active)" : ")");
    };
    Storage::insert(id_, type_, holder({"a", &log_, noteFound}));
    Storage::insert(otherID_, type_, holder({"b", &log_, [&] {
                                                 noteFound();
                                                 Storage::insert(otherID_, type_, holder({"c", &log_, noteFound}));
                                             }}));
    Storage::insert(Storage::getNextID(type_), typeid(int), holder({"d", &log_, [&] {
                                                                        Storage::erase(otherID_, type_);
                                                                        log_ += '!';
                                                                    }}));
    Storage::insert(id_, type_, holder({"e", &log_, noteFound}));
    EXPECT_EQ(log_, "a(bactive)");
    log_.clear();
    endHvm();
    EXPECT_EQ(log_, "e(b)db()!c()");
}

TEST_F(StorageTest, EachVirtualMachineHasItsOwn)
{
    Storage::insert(id_, type_, holder({"a", &log_}));
    {
        velmara::Hvm other;
        velmara::Hvm::Scope const scope(other);
        EXPECT_EQ(Storage::find(id_, type_), nullptr);
        Storage::insert(id_, type_, holder({"b", &log_}));
    }
    EXPECT_EQ(log_, "b");
    EXPECT_EQ(nameOf(Storage::find(id_, type_)), "a");
    std::thread([&] { EXPECT_EQ(Storage::find(id_, type_), nullptr); }).join();
}

TEST_F(StorageTest, RefusesWithoutAVirtualMachineOrAnIdOfItsOwn)
{
    Storage::Holder value = holder({"a", &log_});
    EXPECT_EQ(messageIdOf([&] { Storage::insert(UINT64_MAX, type_, std::move(value)); }),
              "VELMARA:hvm:unknownStorageID");
    EXPECT_TRUE(Storage::isRequiredContextActive());
    endHvm();
    EXPECT_FALSE(Storage::isRequiredContextActive());
    EXPECT_EQ(Storage::find(id_, type_), nullptr);
    EXPECT_FALSE(Storage::erase(id_, type_));
    auto const insert = [&] { Storage::insert(id_, type_, std::move(value)); };
    auto const findOrInsert = [&] { Storage::findOrInsert(id_, type_, std::move(value)); };
    EXPECT_EQ(messageIdOf(insert), "VELMARA:hvm:noVirtualMachine");
    EXPECT_EQ(messageIdOf(findOrInsert), "VELMARA:hvm:noVirtualMachine");
    EXPECT_EQ(nameOf(&value), "a");
}
