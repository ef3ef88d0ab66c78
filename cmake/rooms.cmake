# Sources that are mostly templates of a web server: optimised less, they compile in half the time.
function(compile_lightly)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:RelWithDebInfo>:-O1>)
endfunction()

# Every source of a folder belongs to that folder's target: adding a file needs no list to be edited.
function(room_sources OUT)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    set(${OUT} ${found} PARENT_SCOPE)
endfunction()
