# The compiler's run-time libraries are linked dynamically, so that exceptions propagate between DLLs, and copied beside
# the programs.
if(WIN32)
    foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
            OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        file(COPY ${file} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
        execute_process(COMMAND ${CMAKE_STRIP} -p ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name} COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
endif()
