# Compiles through ccache where it is installed.
set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_CURRENT_LIST_DIR}/compiler_launcher.sh)
