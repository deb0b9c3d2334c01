# Installs two components. runtime: the libraries, the console and, on Windows, the compiler's run-time libraries;
# development: headers, packages for find_package(orbis_factory) and for pkg-config, documentation, examples.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/orbis_factory)
set(namelink_of_orbis_factory runtime) # the console loads it as a module, by its file name
set(namelink_of_velmara_host development)
foreach(target orbis_factory velmara_host orbis_host_declarations)
    install(TARGETS ${target} EXPORT orbis_factory
        RUNTIME COMPONENT runtime
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT ${namelink_of_${target}}
        ARCHIVE COMPONENT development
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target} COMPONENT development)
endforeach()
set(package_components orbis_factory velmara_host)
if(ORBIS_BUILD_CONSOLE)
    install(TARGETS velmara EXPORT orbis_factory COMPONENT runtime)
    list(APPEND package_components velmara)
endif()
if(WIN32)
    file(GLOB runtime ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lib*-*.dll)
    install(FILES ${runtime} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
endif()

# A request is met by the versions with its binary interface, as in the names of the shared libraries.
set(output ${PROJECT_BINARY_DIR}/package)
write_basic_package_version_file(${output}/orbis_factoryConfigVersion.cmake
    VERSION ${orbis_version} COMPATIBILITY ${orbis_compatibility})
configure_file(cmake/package/orbis_factoryConfig.cmake.in ${output}/orbis_factoryConfig.cmake @ONLY)
install(FILES ${output}/orbis_factoryConfigVersion.cmake ${output}/orbis_factoryConfig.cmake
    cmake/package/orbis_factory_add_module.cmake cmake/package/module.cpp.in
    DESTINATION ${package_folder} COMPONENT development)
install(EXPORT orbis_factory NAMESPACE orbis_factory:: FILE orbis_factoryTargets.cmake
    DESTINATION ${package_folder} COMPONENT development)

string(REGEX REPLACE "[^/]+" ".." prefix_from_pkgconfig ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
configure_file(cmake/package/orbis_factory.pc.in ${output}/orbis_factory.pc @ONLY)
install(FILES ${output}/orbis_factory.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
install(DIRECTORY docs examples samples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)

if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(uninstall VERBATIM COMMAND ${CMAKE_COMMAND}
        -D MANIFEST=${PROJECT_BINARY_DIR}/install_manifest.txt -P ${PROJECT_SOURCE_DIR}/cmake/uninstall.cmake)
endif()
