# The cross-compiler: LLVM 19 for an arm64 phone with iOS 14.5, against our own headers and stubs.
set(CMAKE_SYSTEM_NAME Phone)
set(CMAKE_SYSTEM_PROCESSOR arm64)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/cmake)

set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_COMPILER_TARGET arm64-apple-ios14.5)
set(CMAKE_AR llvm-ar-19 CACHE FILEPATH "")
set(CMAKE_RANLIB llvm-ranlib-19 CACHE FILEPATH "")
# There is nothing to link a program with, only libraries.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
set(flags
    # Headers: LLVM's C++ library in our configuration, our C library, the compiler's own; nothing
    # of the machine that builds.
    -nostdlibinc -nostdinc++
    -isystem ${CMAKE_CURRENT_LIST_DIR}/headers/configuration
    -isystem /usr/lib/llvm-19/include/c++/v1
    -isystem ${CMAKE_CURRENT_LIST_DIR}/headers/c
    -ffile-prefix-map=${root}/=
    # Nothing is exported, the C++ library that is linked in least of all.
    -fvisibility=hidden -fvisibility-inlines-hidden -fvisibility-global-new-delete=force-hidden
    -D_LIBCPP_DISABLE_VISIBILITY_ANNOTATIONS
    # Exceptions pass and are caught, but none of ours has a C++ type: types would be imports from
    # the phone's C++ library. At exit the host's threads still run, so nothing is destroyed then.
    -fexceptions -fno-rtti -fno-c++-static-destructors
    # What the compiler outlines of functions that let nothing out gets no unwind information, so that
    # an exception that they would catch inside ends the process. Nothing grows without it.
    -mno-outline
    -ffunction-sections -fdata-sections)
list(JOIN flags " " CMAKE_CXX_FLAGS_INIT)
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-fuse-ld=lld -nostdlib")
