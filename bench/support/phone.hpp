// A phone in this process for benchmarks: device root, preference file, rules, the loaded library.
#pragma once

#include <cstddef>
#include <string>

namespace bench {

/// Which form the preference file has.
enum class PlistForm { xml, binary };

/// Writes the preference file, 150 keys with every switch of labels and of the edit menu on, below
/// a device root that is made at the first call and removed at exit. Gives the file's path on the
/// device.
const std::string& preferenceFile(PlistForm form);

/// Writes the same file with request blocking on or off and 1,000 words of the user's for new URLs.
const std::string& blockingFile(PlistForm form, bool blocks);

/// Brings up the desktop platform with 1,000 text rules and 100 of each other kind in the user
/// defaults, once.
void startPlatform();

/// What loading the library took and added.
struct Loading {
    double milliseconds;
    std::size_t ownResidentBytes;   ///< of the library's file
    std::size_t otherResidentBytes; ///< what looking up and hooking touched of others, and the heap
    std::size_t fileBytes;
};

/// Loads Wentra.so into this process, which must not have it yet.
Loading loadLibrary();

/// Loads Wentra.so once, after the platform.
void startPhone();

} // namespace bench
