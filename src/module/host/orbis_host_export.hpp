#pragma once

// Marks what the host libraries export. The host's own build defines ORBIS_HOST_BUILD.
#if defined(_WIN32)
#if defined(ORBIS_HOST_BUILD)
#define ORBIS_HOST_API __declspec(dllexport)
#else
#define ORBIS_HOST_API __declspec(dllimport)
#endif
#else
#define ORBIS_HOST_API __attribute__((visibility("default")))
#endif
