#include "orbis/factory/base/export.hpp"
#include "orbis/factory/version.hpp"

#define NUMBER_TEXT(number) #number
#define VERSION_TEXT(major, minor, patch, build)                                                                       \
    NUMBER_TEXT(major) "." NUMBER_TEXT(minor) "." NUMBER_TEXT(patch) "." NUMBER_TEXT(build)

// The host reads the three pointers as one record: they must be adjacent, in this order and in writable data. The build
// disables reordering for this file.
extern "C" {
ORBIS_FACTORY_API char const* orbis_factory_version = VERSION_TEXT(
    ORBIS_FACTORY_VERSION_MAJOR, ORBIS_FACTORY_VERSION_MINOR, ORBIS_FACTORY_VERSION_PATCH, ORBIS_FACTORY_VERSION_BUILD);
ORBIS_FACTORY_API char const* orbis_factory_build_date = __DATE__;
ORBIS_FACTORY_API char const* orbis_factory_relative_path = "bin\\win64\\orbis_factory.dll";
}
