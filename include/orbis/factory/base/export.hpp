#pragma once

// Marks exported symbols. ORBIS_FACTORY_BUILD is defined only while the library itself is built.
#if defined(_WIN32)
#if defined(ORBIS_FACTORY_BUILD)
#define ORBIS_FACTORY_API __declspec(dllexport)
#else
#define ORBIS_FACTORY_API __declspec(dllimport)
#endif
#else
#define ORBIS_FACTORY_API __attribute__((visibility("default")))
#endif
