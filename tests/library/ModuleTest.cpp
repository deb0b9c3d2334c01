#include "HvmTest.hpp"
#include "library/Plain.hpp"
#include "library/libraryFile.hpp"

#include "orbis/factory/ownership/BindingRegistry.hpp"

#include "orbis/COSNameID.hpp"
#include "orbis/COSPackage.hpp"

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <regex>
#include <thread>
#include <utility>
#include <vector>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

extern "C" {
void VXInitialize_orbis_factory();
void VXTerminate_orbis_factory();
void const* QueryVXFcnTable_orbis_factory();
}

namespace {

using ModuleTest = HvmTest;

orbis::COSPackage* rootPackage()
{
    return orbis::COSPackage::getPackage(orbis::COSNameID("orbis_factory"));
}

TEST_F(ModuleTest, InitialisationCountsOncePerVirtualMachine)
{
    VXTerminate_orbis_factory();
    VXInitialize_orbis_factory();
    orbis::COSPackage* const root = rootPackage();
    ASSERT_NE(root, nullptr);
    VXInitialize_orbis_factory();
    EXPECT_EQ(rootPackage(), root);
    {
        velmara::Hvm other;
        velmara::Hvm::Scope const scope(other);
        EXPECT_EQ(rootPackage(), nullptr);
        VXInitialize_orbis_factory();
        EXPECT_NE(rootPackage(), nullptr);
    }
    VXTerminate_orbis_factory();
    EXPECT_EQ(rootPackage(), nullptr);
    VXTerminate_orbis_factory();
    VXInitialize_orbis_factory();
    EXPECT_NE(rootPackage(), nullptr);
}

/// `std::barrier` of the cross compiler's library misses wake-ups: now and then all threads wait for ever.
class Barrier {
public:
    explicit Barrier(int count) : count_(count) {}

    void wait()
    {
        std::unique_lock lock(mutex_);
        int const round = round_;
        if (++arrived_ % count_ == 0) {
            ++round_;
            passed_.notify_all();
        }
        passed_.wait(lock, [&] { return round_ != round; });
    }

private:
    std::mutex mutex_;
    std::condition_variable passed_;
    int count_;
    int arrived_ = 0;
    int round_ = 0;
};

TEST_F(ModuleTest, EightVirtualMachinesOnEightThreadsShareNothing)
{
    constexpr int count = 8;
    Barrier together(count);
    auto const settle = [&](double start) {
        for (int round = 0; round < 10; ++round) {
            together.wait(); // the last ones are destroyed while these begin
            velmara::Hvm machine;
            velmara::Hvm::Scope const scope(machine);
            publishPlain();
            static_cast<void>(machine.loadModule(libraryFile));
            velmara::ArrayPtr const name(hvCreateString("Ada"));
            auto const ada = machine.construct("orbis_factory.Person", inputs(name)); // refused where there is an Ada
            machine.setStatic("orbis_factory.Prop", "outside", number(start).get());
            auto const adder = machine.construct("orbis_factory.Adder", inputs(number(start)));
            machine.call(adder.get(), "getSum", inputs(number(1), number(2)));
            EXPECT_EQ(scalar<std::int32_t>(machine.get(adder.get(), "total")), start + 3);
            EXPECT_EQ(scalar<double>(machine.getStatic("orbis_factory.Prop", "outside")), start);
            Plain native;
            velmara::ArrayPtr const host(
                orbis::factory::basic::BindingRegistry::announce(&native, orbis::COSNameID("tests.Plain")));
            together.wait();
            machine.unloadModule("orbis_factory");
            EXPECT_FALSE(velmara::isValid(adder.get()));
            static_cast<void>(machine.loadModule(libraryFile));
            EXPECT_THROW(static_cast<void>(machine.construct("orbis_factory.Person", inputs(name))), velmara::Error)
                << "the town outlasts the module";
        }
    };
    std::vector<std::jthread> others;
    for (int i = 1; i < count; ++i)
        others.emplace_back(settle, i);
    settle(count);
}

TEST_F(ModuleTest, AnInitialisationThatFailsIsNotRemembered)
{
    VXInitialize_orbis_factory();
    VXTerminate_orbis_factory();
    endHvm();
    EXPECT_ANY_THROW(VXInitialize_orbis_factory()) << "there is no virtual machine to publish in";
}

TEST_F(ModuleTest, TheRootPackageOffersFunctionsThatPrint)
{
    VXInitialize_orbis_factory();
    auto const printed = [&](char const* function) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(hvm().callFunction(function), nullptr);
        std::fflush(stdout);
        return testing::internal::GetCapturedStdout();
    };
    EXPECT_EQ(printed("orbis_factory.testPkgStuff"), "success!");
    auto const adder = hvm().construct("orbis_factory.Adder");
    std::string const dump = printed("orbis_factory.dumpReg");
    EXPECT_EQ(std::count(dump.begin(), dump.end(), '\n'), 5);
}

/// The library's own word of that name: a program that names it may be given a copy.
char const** exportedWord(char const* name)
{
#if defined(_WIN32)
    return reinterpret_cast<char const**>(GetProcAddress(GetModuleHandleW(L"orbis_factory.dll"), name));
#else
    std::unique_ptr<void, int (*)(void*)> const library(dlopen("liborbis_factory.so", RTLD_NOW), &dlclose);
    return static_cast<char const**>(dlsym(library.get(), name));
#endif
}

TEST_F(ModuleTest, TheVersionRecordIsThreeWordsInARow)
{
    char const** const version = exportedWord("orbis_factory_version");
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version + 1, exportedWord("orbis_factory_build_date"));
    EXPECT_EQ(version + 2, exportedWord("orbis_factory_relative_path"));
    EXPECT_TRUE(std::regex_match(version[0], std::regex("\\d+\\.\\d+\\.\\d+\\.\\d+")));
    EXPECT_TRUE(std::regex_match(version[1], std::regex("[A-Z][a-z]{2} [ 123]\\d \\d{4}")));
    EXPECT_STREQ(version[2], "bin\\win64\\orbis_factory.dll");
    char const* const kept = std::exchange(version[0], "written"); // writable data
    version[0] = kept;
}

TEST_F(ModuleTest, TheFunctionTableListsTwoPlaceholders)
{
    using Gateway = void (*)(int, hvArray_tag*, int, hvArray_tag*);
    auto const* const functions = *static_cast<Gateway const* const*>(QueryVXFcnTable_orbis_factory());
    ASSERT_NE(functions[0], nullptr);
    EXPECT_EQ(functions[0], functions[1]);
    EXPECT_EQ(functions[2], nullptr);
    testing::internal::CaptureStdout();
    functions[0](0, nullptr, 0, nullptr);
    std::fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Internal Error!");
}

} // namespace
