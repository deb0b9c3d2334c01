# Compiler flags of all targets. They are set for this project's folders only, and never for one that includes it.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Sources are compiled in batches, which takes a third of the time.
if(NOT DEFINED CMAKE_UNITY_BUILD)
    set(CMAKE_UNITY_BUILD ON)
endif()
set(CMAKE_UNITY_BUILD_BATCH_SIZE 24)

# All binaries share a folder: programs find the libraries, and the console and the tests the modules, beside
# themselves.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# The search path of binaries is the same in the build and when installed: editing it on installation would pad it with
# empty elements, which mean the current folder.
include(GNUInstallDirs)
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# g++ 12 warns of overlapping copies in std::string's concatenation where there are none (its bug 105329).
add_compile_options(-Wno-restrict)
if(PROJECT_IS_TOP_LEVEL)
    add_compile_options(-Wall -Wextra -Wshadow)
else()
    set(CMAKE_COMPILE_WARNING_AS_ERROR OFF) # other projects use other compilers
endif()

if(WIN32)
    # A module is named after its file: orbis_factory.dll.
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    set(CMAKE_SHARED_MODULE_PREFIX "")
    add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
else()
    add_compile_options(-fno-plt -fno-semantic-interposition)
    if(PROJECT_IS_TOP_LEVEL AND NOT ORBIS_BUILD_FUZZERS) # clang's sanitizers are linked into programs only
        add_link_options(-Wl,-z,defs)
    endif()
    include(${CMAKE_CURRENT_LIST_DIR}/hardening.cmake)
endif()
