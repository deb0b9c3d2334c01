#pragma once

/// The library under the name that loads it as a module, from the folder that tests run in.
#if defined(_WIN32)
inline constexpr char const* libraryFile = "orbis_factory.dll";
#else
inline constexpr char const* libraryFile = "./liborbis_factory.so";
#endif
