#include "orbis/factory/base/export.hpp"

#ifndef ORBIS_FACTORY_VERSION
#error "The build gives the version: four numbers with dots between them."
#endif

// The host reads the three words as one record, so they stand next to each other, in this order and in writable
// data. The build keeps the compiler from reordering this file.
extern "C" {
ORBIS_FACTORY_API char const* orbis_factory_version = ORBIS_FACTORY_VERSION;
ORBIS_FACTORY_API char const* orbis_factory_build_date = __DATE__;
ORBIS_FACTORY_API char const* orbis_factory_relative_path = "bin\\win64\\orbis_factory.dll";
}
