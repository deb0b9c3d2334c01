# orbis_factory_add_module(NAME SOURCE...): builds a module for the host, with its entry points and version record. It
# has one package, with the module's name. One of the sources defines its contents:
#
#     void publishModule(orbis::factory::Module& module);   // or void publishModule(orbis::COSPackage* package)
function(orbis_factory_add_module name)
    set(MODULE_NAME ${name})
    set(MODULE_VERSION ${PROJECT_VERSION})
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/module.cpp.in ${CMAKE_CURRENT_BINARY_DIR}/${name}_module.cpp @ONLY)
    add_library(${name} MODULE ${ARGN} ${CMAKE_CURRENT_BINARY_DIR}/${name}_module.cpp)
    target_link_libraries(${name} PRIVATE orbis_factory::orbis_factory $<LINK_ONLY:orbis_factory::velmara_host>)
    set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        UNITY_BUILD OFF) # the generated source defines the other publishModule, unless the module does
    if(WIN32)
        set_target_properties(${name} PROPERTIES PREFIX "") # a module is named after its file
    endif()
endfunction()
