// Moves the phone's file tree under one folder, for the whole process and its children.
#pragma once

extern "C" {

/// Sets the folder under which device paths (/var/mobile, /var/jb, /var/LIY, /Library and the
/// archivers) are found from now on; it starts as the environment variable WENTRA_DEVICE_ROOT.
/// The absolute path is copied, and also put into the environment, together with this library in
/// LD_PRELOAD, for the processes started later; if they are for another machine than this process,
/// the environment variable WENTRA_DEVICE_ROOT_LIBRARY names this library as built for theirs. Null
/// or empty ends the redirection. Returns false, changing nothing, when the path is relative or too
/// long. Not to be called while other threads start processes or open files.
bool deviceroot_set(const char* folder);

/// The folder in use, "" when there is none; owned by the library.
const char* deviceroot_get();
}
