# Two thirds of what the compiler reads for a file of ours is the standard library: it is read once for
# each target. Sources include what they use nevertheless, as tools read them without this.
function(precompile_standard_headers TARGET)
    target_precompile_headers(${TARGET} PRIVATE <algorithm> <array> <atomic> <cmath> <functional> <map>
                              <memory> <optional> <span> <string> <string_view> <vector> ${ARGN})
endfunction()

# ccache wants to be shown the header when GCC reads its precompiled form.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
    add_compile_options(-fpch-preprocess)
endif()
