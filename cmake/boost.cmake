# Boost is headers only, Debian's libboost-dev, also for Windows. The cross compiler must not see the rest of
# /usr/include, so for it the one folder is linked into a folder of the build's own.
if(CMAKE_CROSSCOMPILING)
    set(boost_headers /usr/include/boost)
    if(NOT EXISTS ${boost_headers}/version.hpp)
        message(FATAL_ERROR "Boost's headers are not in ${boost_headers}: run scripts/install-packages")
    endif()
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/include)
    file(CREATE_LINK ${boost_headers} ${PROJECT_BINARY_DIR}/include/boost SYMBOLIC)
    add_library(Boost::headers INTERFACE IMPORTED GLOBAL)
    target_include_directories(Boost::headers SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/include)
else()
    find_package(Boost REQUIRED)
endif()
