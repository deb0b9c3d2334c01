#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include "libkwfoundation_usm/Detail.hpp"
#include "orbis/COSTypeRepository.hpp"

using namespace described;
using orbis::COSInterfacePtr;
using velmara::ArrayPtr;
using Storage = foundation::usm::Detail<foundation::usm::scope::Hvm>;

namespace {

class VirtualMachineTest : public HvmTest {};

std::string* destructionLog = nullptr; // for deleters, which are plain functions

} // namespace

TEST_F(VirtualMachineTest, DestroysObjectsThenPackagesThenStorage)
{
    std::string log;
    destructionLog = &log;
    struct Logged : Class {
        using Class::Class;
        ~Logged() override { *destructionLog += Storage::isRequiredContextActive() ? "info " : "late info "; }
    };
    auto* const info = new Logged("A");
    info->destroy = [&](COSInterface*, void*) {
        orbis::COSClass* const cls = orbis::COSClass::getClass("A");
        EXPECT_EQ(messageIdOf([cls] { cls->newInstance(); }), "VELMARA:hvm:ending");
        log += Storage::isRequiredContextActive() ? "object " : "late object ";
    };
    publish(info);
    static std::uint64_t const id = Storage::getNextID(typeid(std::string));
    Storage::insert(id, typeid(std::string), Storage::Holder(&log, [](void*) {
                        *destructionLog += Storage::isRequiredContextActive() ? "early " : "storage ";
                        orbis::COSTypeRepository::removeGlobalType("still there");
                        EXPECT_EQ(orbis::COSClass::getClass("A"), nullptr);
                    }));
    ArrayPtr const left = hvm().construct("A");
    COSInterfacePtr handle = objectIn(left);
    endHvm();
    EXPECT_EQ(log, "object info storage ");
    EXPECT_FALSE(velmara::isValid(left.get()));
    handle->setValid(true);
    EXPECT_FALSE(velmara::isValid(left.get())) << "what was destroyed stays destroyed";
    EXPECT_EQ(orbis::COSClass::getClass("A"), nullptr);
    EXPECT_EQ(messageIdOf([] { publish(new Class("B")); }), "VELMARA:hvm:noVirtualMachine");
    EXPECT_EQ(messageIdOf([] { orbis::COSPackage::addPackage(new Package("p")); }), "VELMARA:hvm:noVirtualMachine");
}

TEST_F(VirtualMachineTest, ObjectsBelongToOneAndAreDestroyedInIt)
{
    std::string log;
    auto const publishIn = [&](char const* machine) {
        orbis::COSPackage::addPackage(new Package(machine));
        auto* const info = new Class("A", [](orbis::COSClass* cls) {
            cls->addMethod(answering("take", {"A", "any"}, 1));
        });
        info->destroy = [&log, machine](COSInterface*, void*) {
            log += orbis::COSPackage::getPackage(machine) ? machine : "elsewhere";
        };
        publish(info);
    };
    publishIn("mine ");
    ArrayPtr const mine = hvm().construct("A");
    ArrayPtr givenBack = hvm().construct("A");
    ArrayPtr foreign;
    {
        velmara::Hvm other;
        velmara::Hvm::Scope const scope(other);
        publishIn("other");
        foreign = other.construct("A");
        EXPECT_EQ(errorOf([&] { other.call(mine.get(), "take", inputs(mine)); }), "VELMARA:object:otherVirtualMachine");
        EXPECT_EQ(errorOf([&] { other.call(foreign.get(), "take", inputs(mine)); }),
                  "VELMARA:object:otherVirtualMachine");
        EXPECT_EQ(errorOf([&] { other.deleteObjects(mine.get()); }), "VELMARA:object:otherVirtualMachine");
        hvm().deleteObjects(mine.get());
        givenBack.reset();
        EXPECT_EQ(log, "mine mine ") << "in its own machine, whichever is current";
    }
    EXPECT_EQ(log, "mine mine other");
    EXPECT_FALSE(velmara::isValid(foreign.get()));
    EXPECT_EQ(hvm().lookUp("other"), velmara::NameKind::None);
    EXPECT_EQ(errorOf([&] { hvm().call(foreign.get(), "take"); }), "VELMARA:object:invalid");
}

TEST_F(VirtualMachineTest, NoScopeRestoresADestroyedOne)
{
    using Scope = velmara::Hvm::Scope;
    auto first = std::make_unique<velmara::Hvm>(), second = std::make_unique<velmara::Hvm>();
    auto inFirst = std::make_unique<Scope>(*first), inSecond = std::make_unique<Scope>(*second);
    auto inMine = std::make_unique<Scope>(hvm());
    first.reset();
    inFirst.reset(); // out of order
    second.reset();
    inMine.reset();
    EXPECT_FALSE(Storage::isRequiredContextActive());
}
