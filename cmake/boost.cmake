# Boost: headers only, from Debian's libboost-dev, for Windows too. The cross compiler must not see the rest of
# /usr/include, so the build links the Boost folder into one of its own.
if(TARGET Boost::headers)
    return() # that of the project which includes this one
endif()
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
