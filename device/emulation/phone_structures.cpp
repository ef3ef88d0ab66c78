// Filling the phone's structures.
#include "device/emulation/phone_structures.hpp"

#include <cstring>

namespace emulation {
namespace {

PhoneTime phoneTime(const timespec& time) { return {time.tv_sec, time.tv_nsec}; }

} // namespace

PhoneStatus phoneStatus(const struct stat& status) {
    PhoneStatus filled{};
    filled.device = static_cast<std::int32_t>(status.st_dev);
    filled.mode = static_cast<std::uint16_t>(status.st_mode);
    filled.links = static_cast<std::uint16_t>(status.st_nlink);
    filled.inode = status.st_ino;
    filled.user = status.st_uid;
    filled.group = status.st_gid;
    filled.deviceOfSpecialFile = static_cast<std::int32_t>(status.st_rdev);
    filled.accessed = phoneTime(status.st_atim);
    filled.modified = phoneTime(status.st_mtim);
    filled.changed = filled.born = phoneTime(status.st_ctim);
    filled.size = status.st_size;
    filled.blocks = status.st_blocks;
    filled.blockSize = static_cast<std::int32_t>(status.st_blksize);
    return filled;
}

PhoneEntry phoneEntry(const dirent& entry) {
    const std::size_t length = std::strlen(entry.d_name);
    PhoneEntry filled{};
    filled.inode = entry.d_ino;
    filled.place = static_cast<std::uint64_t>(entry.d_off);
    filled.recordSize = static_cast<std::uint16_t>(offsetof(PhoneEntry, name) + length + 1);
    filled.nameLength = static_cast<std::uint16_t>(length);
    filled.kind = entry.d_type; // the one thing that both number alike
    std::memcpy(filled.name.data(), entry.d_name, length);
    return filled;
}

} // namespace emulation
