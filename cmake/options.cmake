# What is built. As part of another project only the libraries are, unless it asks for more.
option(ORBIS_BUILD_CONSOLE "Build the script console (needs Lua and libedit)" ${PROJECT_IS_TOP_LEVEL})
option(ORBIS_BUILD_SAMPLES "Build the classes of the package orbis_factory, which is empty without" ${PROJECT_IS_TOP_LEVEL})
option(ORBIS_BUILD_TESTS "Build the tests (needs the console, the samples and GoogleTest)" ${PROJECT_IS_TOP_LEVEL})
option(ORBIS_BUILD_FUZZERS "Build the programs in fuzz/ (needs clang and the samples)" OFF)
option(ORBIS_BUILD_BENCH "Build the measurements in bench/ (needs Google Benchmark and the samples)" OFF)
option(ORBIS_INSTALL "Install the libraries, the console and the CMake package" ${PROJECT_IS_TOP_LEVEL})

if(ORBIS_BUILD_TESTS AND NOT (ORBIS_BUILD_CONSOLE AND ORBIS_BUILD_SAMPLES AND ORBIS_INSTALL))
    message(FATAL_ERROR "ORBIS_BUILD_TESTS needs ORBIS_BUILD_CONSOLE, ORBIS_BUILD_SAMPLES and ORBIS_INSTALL")
endif()
