# Most of a source's time is that of what it includes. Where a preset says how many (WENTRA_JOINED_SOURCES),
# sources of one folder are compiled together; names in them must differ even where they are unnamed
# namespaces'. Each source includes what it uses nevertheless: other presets compile each by itself.
function(join_sources TARGET)
    if(NOT WENTRA_JOINED_SOURCES)
        return()
    endif()
    get_target_property(sources ${TARGET} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    foreach(source ${sources})
        cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE place)
        cmake_path(NORMAL_PATH place)
        cmake_path(GET place PARENT_PATH folder)
        string(MAKE_C_IDENTIFIER ${folder} folder)
        list(LENGTH ${folder} earlier)
        list(APPEND ${folder} ${source})
        math(EXPR batch "${earlier} / ${WENTRA_JOINED_SOURCES}")
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${folder}_${batch})
    endforeach()
    set_target_properties(${TARGET} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    # GCC takes what is unnamed in a joined source for a header's.
    target_compile_options(${TARGET} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()
