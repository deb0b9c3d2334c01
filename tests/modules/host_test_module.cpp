// A module of nothing but host declarations: it adds one package, and refuses to start and to terminate
// where a package "refuse_modules" is.
#include "orbis/COSPackage.hpp"
#include "orbis/COSPackageInfo.hpp"

#include <stdexcept>

#if defined(_WIN32)
#define MODULE_EXPORT extern "C" __declspec(dllexport)
#else
#define MODULE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

struct ModulePackage : orbis::COSPackageInfo {
    char const* getName() const override { return "host_test_module"; }
    void initializePackage(orbis::COSPackage*) override {}
};

} // namespace

MODULE_EXPORT char const* host_test_module_version;
char const* host_test_module_version = "1.2.3.4";
MODULE_EXPORT char const* host_test_module_build_date;
char const* host_test_module_build_date = "Jan  1 2024";

namespace {

void refuse()
{
    if (orbis::COSPackage::getPackage("refuse_modules"))
        throw std::runtime_error("refused");
}

} // namespace

MODULE_EXPORT void VXInitialize_host_test_module()
{
    if (!orbis::COSPackage::getPackage("host_test_module"))
        orbis::COSPackage::addPackage(new ModulePackage);
    refuse();
}

MODULE_EXPORT void VXTerminate_host_test_module()
{
    refuse();
    orbis::COSPackage::removePackage("host_test_module");
}

MODULE_EXPORT void* QueryVXFcnTable_host_test_module()
{
    return nullptr;
}
