// Structures of the phone's system, filled from Linux's: the same contents at other places.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <dirent.h>
#include <sys/stat.h>

namespace emulation {

struct PhoneTime {
    std::int64_t seconds;
    std::int64_t nanoseconds;
};

/// `struct stat`.
struct PhoneStatus {
    std::int32_t device;
    std::uint16_t mode;
    std::uint16_t links;
    std::uint64_t inode;
    std::uint32_t user;
    std::uint32_t group;
    std::int32_t deviceOfSpecialFile;
    PhoneTime accessed;
    PhoneTime modified;
    PhoneTime changed;
    PhoneTime born;
    std::int64_t size;
    std::int64_t blocks;
    std::int32_t blockSize;
    std::uint32_t flags;
    std::uint32_t generation;
    std::array<std::int32_t, 5> spare;
};
static_assert(sizeof(PhoneStatus) == 144);

/// Linux does not tell when a file was born: it is the last change then.
[[nodiscard]] PhoneStatus phoneStatus(const struct stat& status);

/// `struct dirent`.
struct PhoneEntry {
    std::uint64_t inode;
    std::uint64_t place;
    std::uint16_t recordSize;
    std::uint16_t nameLength;
    std::uint8_t kind;
    std::array<char, 1024> name;
};
static_assert(offsetof(PhoneEntry, name) == 21);

[[nodiscard]] PhoneEntry phoneEntry(const dirent& entry);

} // namespace emulation
