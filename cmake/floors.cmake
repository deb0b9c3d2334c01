# orbis_add_floor(NAME FOLDER DIR ROOMS room... [ON floor...])
#
# An object library of the rooms, which are folders in DIR. What is compiled in it finds the headers of its own rooms
# and those of the floors that it stands on, as "room/Header.hpp", and no others: their folders are linked into a view
# of its own in the build tree.
function(orbis_add_floor name)
    cmake_parse_arguments(floor "" FOLDER "ROOMS;ON" ${ARGN})
    set(view ${CMAKE_CURRENT_BINARY_DIR}/floors/${name})
    file(MAKE_DIRECTORY ${view})
    set(sources)
    foreach(room IN LISTS floor_ROOMS)
        file(CREATE_LINK ${floor_FOLDER}/${room} ${view}/${room} SYMBOLIC)
        file(GLOB found CONFIGURE_DEPENDS ${floor_FOLDER}/${room}/*.cpp)
        list(APPEND sources ${found})
    endforeach()
    add_library(${name} OBJECT ${sources})
    target_include_directories(${name} PUBLIC ${view})
    target_link_libraries(${name} PUBLIC ${floor_ON})
endfunction()
