# How CMake makes libraries for the phone: a module is a Mach-O dynamic library.
set(CMAKE_SHARED_MODULE_PREFIX "")
set(CMAKE_SHARED_MODULE_SUFFIX .dylib)
set(CMAKE_DL_LIBS "")
set_property(GLOBAL PROPERTY TARGET_SUPPORTS_SHARED_LIBS TRUE)
