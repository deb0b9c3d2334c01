# find_package(orbis_factory) provides the target orbis_factory::orbis_factory and a function that builds modules.
include(CMakeFindDependencyMacro)
if(NOT TARGET Boost::headers)
    find_dependency(Boost)
endif()
include(${CMAKE_CURRENT_LIST_DIR}/orbis_factoryTargets.cmake)
set(orbis_factory_module_template ${CMAKE_CURRENT_LIST_DIR}/module.cpp.in)

# orbis_factory_add_module(NAME SOURCE...): builds a module for the host, with its entry points and version record. It
# has one package, with the module's name. One of the sources defines its contents:
#
#     void publishModule(orbis::COSPackage* package);
function(orbis_factory_add_module name)
    set(MODULE_NAME ${name})
    set(MODULE_VERSION ${PROJECT_VERSION})
    configure_file(${orbis_factory_module_template} ${CMAKE_CURRENT_BINARY_DIR}/${name}_module.cpp @ONLY)
    add_library(${name} MODULE ${ARGN} ${CMAKE_CURRENT_BINARY_DIR}/${name}_module.cpp)
    target_link_libraries(${name} PRIVATE orbis_factory::orbis_factory $<LINK_ONLY:orbis_factory::velmara_host>)
    set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    if(WIN32)
        set_target_properties(${name} PROPERTIES PREFIX "") # a module is named after its file
    endif()
endfunction()
