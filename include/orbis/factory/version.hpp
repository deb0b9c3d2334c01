#pragma once

/// The version of the library: the build, the packages and the version record read it from here. Until 1.0 the
/// interface may change with MINOR, from then on with MAJOR; PATCH and BUILD never change it.
// NOLINTBEGIN(modernize-macro-to-enum): for #if
#define ORBIS_FACTORY_VERSION_MAJOR 0
#define ORBIS_FACTORY_VERSION_MINOR 1
#define ORBIS_FACTORY_VERSION_PATCH 0
#define ORBIS_FACTORY_VERSION_BUILD 0
// NOLINTEND(modernize-macro-to-enum)

/// The version as one number that grows with it: 10203 is 1.2.3. For `#if ORBIS_FACTORY_VERSION >= 10203`.
#define ORBIS_FACTORY_VERSION                                                                                          \
    (ORBIS_FACTORY_VERSION_MAJOR * 10000 + ORBIS_FACTORY_VERSION_MINOR * 100 + ORBIS_FACTORY_VERSION_PATCH)
