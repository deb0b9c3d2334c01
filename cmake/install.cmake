# Installs the library, the host, the console, their headers, and a package for find_package(orbis_factory); on Windows
# also the compiler's run-time libraries.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/orbis_factory)
target_compile_features(orbis_factory PUBLIC cxx_std_20)

foreach(target orbis_factory velmara_host orbis_host_declarations)
    install(TARGETS ${target} EXPORT orbis_factory
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target})
endforeach()
install(TARGETS velmara)
if(WIN32)
    file(GLOB runtime ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lib*-*.dll)
    install(FILES ${runtime} DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

write_basic_package_version_file(${PROJECT_BINARY_DIR}/orbis_factoryConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/orbis_factoryConfigVersion.cmake
    cmake/package/orbis_factoryConfig.cmake cmake/package/module.cpp.in DESTINATION ${package_folder})
install(EXPORT orbis_factory NAMESPACE orbis_factory:: FILE orbis_factoryTargets.cmake DESTINATION ${package_folder})
