// The folder that stands for the root of the device's file tree, and what children inherit of it.
#pragma once

#include <string_view>

namespace desktop {

/// The folder without a slash at its end, empty when paths are not redirected; a null character
/// follows. Read from the environment at the first call. Owned by the library.
std::string_view rootFolder();

/// The environment's entries ("NAME=value") that make a child see the same file tree.
struct Inheritance {
    char* root;
    char* preload;
};
Inheritance inheritance();

} // namespace desktop
