#include "orbis/factory/base/export.hpp"

#ifndef ORBIS_FACTORY_VERSION
#error "The build gives the version: four numbers with dots between them."
#endif

// The host reads the three pointers as one record: they must be adjacent, in this order and in writable data. The build
// disables reordering for this file.
extern "C" {
ORBIS_FACTORY_API char const* orbis_factory_version = ORBIS_FACTORY_VERSION;
ORBIS_FACTORY_API char const* orbis_factory_build_date = __DATE__;
ORBIS_FACTORY_API char const* orbis_factory_relative_path = "bin\\win64\\orbis_factory.dll";
}
