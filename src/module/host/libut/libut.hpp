#pragma once

#include "orbis_host_export.hpp"

#if defined(__MINGW32__)
#define ORBIS_PRINTF_LIKE __attribute__((format(gnu_printf, 1, 2)))
#else
#define ORBIS_PRINTF_LIKE __attribute__((format(printf, 1, 2))) ///< has compilers check the arguments
#endif

extern "C" {

/// Prints to the host's command output, as `printf` does. Returns the number of characters.
ORBIS_HOST_API int utPrintf(char const* format, ...) ORBIS_PRINTF_LIKE;

/// Frees storage that came from `calloc`: the memory of host enumerations and data types. Null is allowed.
ORBIS_HOST_API void utFree(void* memory);
}
