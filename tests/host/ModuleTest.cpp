#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <filesystem>
#include <fstream>

using velmara::NameKind;

namespace {

namespace fs = std::filesystem;

class ModuleTest : public HvmTest {
protected:
    /// The test module beside the test program, whatever the system calls it.
    static fs::path moduleFile()
    {
        for (char const* name : {"libhost_test_module.so", "host_test_module.dll", "libhost_test_module.dll"})
            if (fs::exists(name))
                return name;
        ADD_FAILURE() << "no test module in " << fs::current_path();
        return {};
    }
};

} // namespace

TEST_F(ModuleTest, LoadedInitialisedAgainUnloadedAndLoadedAgain)
{
    velmara::ModuleRecord const record = hvm().loadModule(moduleFile());
    EXPECT_EQ(record.name, "host_test_module");
    EXPECT_EQ(record.version, "1.2.3.4");
    EXPECT_EQ(record.buildDate, "Jan  1 2024");
    EXPECT_EQ(record.relativePath, "") << "a missing word is no error";
    EXPECT_EQ(hvm().lookUp("host_test_module"), NameKind::Package);
    hvm().loadModule(moduleFile());
    EXPECT_EQ(hvm().modules().size(), 1u);
    hvm().unloadModule("host_test_module");
    EXPECT_EQ(hvm().lookUp("host_test_module"), NameKind::None);
    EXPECT_TRUE(hvm().modules().empty());
    EXPECT_EQ(errorOf([&] { hvm().unloadModule("host_test_module"); }), "VELMARA:module:notLoaded");
    hvm().loadModule(moduleFile());
    velmara::Hvm other;
    EXPECT_EQ(other.lookUp("host_test_module"), NameKind::None);
    other.loadModule(moduleFile());
    hvm().unloadModule("host_test_module");
    EXPECT_EQ(other.lookUp("host_test_module"), NameKind::Package);
}

TEST_F(ModuleTest, WhatIsNoModuleIsRefused)
{
    fs::path const folder = "no_modules";
    fs::create_directories(folder);
    fs::path const text = folder / "text.so";
    fs::path const renamed = "renamed_test_module" + moduleFile().extension().string(); // beside what it depends on
    std::ofstream(text) << "no library";
    fs::copy_file(moduleFile(), renamed, fs::copy_options::overwrite_existing);
    auto const errorOfLoading = [&](fs::path const& file) { return errorOf([&] { hvm().loadModule(file); }); };
    EXPECT_EQ(errorOfLoading(folder / "missing.so"), "VELMARA:module:cannotLoad");
    EXPECT_EQ(errorOfLoading(folder), "VELMARA:module:cannotLoad");
    EXPECT_EQ(errorOfLoading(text), "VELMARA:module:cannotLoad");
    EXPECT_EQ(errorOfLoading(renamed), "VELMARA:module:noEntryPoint");
    hvm().loadModule(moduleFile());
    fs::path const twin = folder / moduleFile().filename();
    fs::copy_file(moduleFile(), twin, fs::copy_options::overwrite_existing);
    EXPECT_EQ(errorOfLoading(twin), "VELMARA:module:otherFile");
    fs::remove(renamed);
    fs::remove_all(folder);
}

TEST_F(ModuleTest, WhatItsEntryPointsThrowNamesTheModule)
{
    std::vector<std::string> const parts = {"VELMARA:native:exception", "\"host_test_module\"", "refused"};
    auto const load = [&] { hvm().loadModule(moduleFile()); };
    auto const unload = [&] { hvm().unloadModule("host_test_module"); };
    auto const refuse = [] { orbis::COSPackage::addPackage(new described::Package("refuse_modules")); };
    refuse();
    expectMessage(load, parts);
    EXPECT_TRUE(hvm().modules().empty());
    EXPECT_EQ(hvm().lookUp("host_test_module"), NameKind::None) << "what it had added is removed";
    orbis::COSPackage::removePackage("refuse_modules");
    load();
    refuse();
    expectMessage(unload, parts);
    EXPECT_EQ(hvm().modules().size(), 1u) << "it stays";
    orbis::COSPackage::removePackage("refuse_modules");
    unload();

    std::string reported;
    hvm().reportTerminations(
        [&](std::string const& module, char const* reason) { reported += module + ": " + reason; });
    load();
    refuse();
    endHvm();
    EXPECT_EQ(reported, "host_test_module: refused");
}
