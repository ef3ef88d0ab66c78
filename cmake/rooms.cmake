# Every source of a folder belongs to that folder's target: adding a file needs no list to be edited.
function(room_sources OUT)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    set(${OUT} ${found} PARENT_SCOPE)
endfunction()
