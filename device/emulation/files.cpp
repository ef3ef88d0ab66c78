// Files: `struct stat` and the flags differ.
#include "device/emulation/calls.hpp"
#include "device/emulation/imports.hpp"
#include "device/emulation/phone_numbers.hpp"
#include "device/emulation/phone_structures.hpp"
#include "device/emulation/refusal.hpp"

#include <fcntl.h>

namespace emulation {
namespace {

template <class Ask>
int status(PhoneStatus* filled, Ask ask) {
    struct stat found {};
    const int result = ask(&found);
    if (result == 0) {
        *filled = phoneStatus(found);
    }
    return result;
}

int statusAt(const char* path, PhoneStatus* filled) {
    return status(filled, [&](struct stat* found) { return stat(path, found); });
}
int statusOfLink(const char* path, PhoneStatus* filled) {
    return status(filled, [&](struct stat* found) { return lstat(path, found); });
}
int statusOfOpen(int file, PhoneStatus* filled) {
    return status(filled, [&](struct stat* found) { return fstat(file, found); });
}

int flagsForLookup(int flags) {
    const auto known = linuxLookupFlags(flags);
    if (!known) {
        refuse("fstatat's flags " + std::to_string(flags));
    }
    return *known;
}
int linuxFolder(int folder) {
    constexpr int phoneCurrentFolder = -2; // Linux's is -100
    return folder == phoneCurrentFolder ? AT_FDCWD : folder;
}
int statusInFolder(int folder, const char* path, PhoneStatus* filled, int flags) {
    return status(filled, [&](struct stat* found) {
        return fstatat(linuxFolder(folder), path, found, flagsForLookup(flags));
    });
}

} // namespace

extern "C" [[gnu::visibility("hidden")]] int emulation_openList(const char* path, int phoneFlags,
                                                                const mode_t* mode) {
    const auto flags = linuxOpenFlags(phoneFlags);
    if (!flags) {
        refuse("open's flags " + std::to_string(phoneFlags));
    }
    return (*flags & O_CREAT) != 0 ? open(path, *flags, *mode) : open(path, *flags);
}

std::vector<Translation> fileTranslations() {
    return {
        translation("_fstat", &statusOfOpen), translation("_fstatat", &statusInFolder),
        translation("_lstat", &statusOfLink), translation("_open", &emulation_open),
        translation("_stat", &statusAt),
    };
}

} // namespace emulation
