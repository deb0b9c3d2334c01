# Packages that cpack makes of the two components: a .deb of each, and a .zip of both for Windows. See scripts/package.
set(CPACK_PACKAGE_CONTACT "orbis_factory maintainers <maintainers@orbis-factory.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Publishes native C++ classes to a host's class-object system")
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

# The console needs no headers, so that there are two. `orbis-factory` provides libraries to the packages of modules: its
# shlibs file tells their dependencies.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME orbis-factory)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION interpreters)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME orbis-factory-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "orbis-factory (= ${orbis_version}), libboost-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The libraries, and velmara, a console that runs Lua scripts on published classes.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake and pkg-config packages, documentation and examples.")
include(CPack)
