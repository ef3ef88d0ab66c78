// Numbers and structures of the phone's system.
#include "device/emulation/byte_reader.hpp"
#include "device/emulation/phone_numbers.hpp"
#include "device/emulation/phone_structures.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <utility>
#include <vector>

namespace {

using emulation::linuxLookupFlags;
using emulation::linuxOpenFlags;
using emulation::phoneError;

TEST(PhoneError, IsTheSameUpToTheEndOfTheOldList) {
    for (const int error : {EPERM, ENOENT, EINTR, EEXIST, EXDEV, EINVAL, ERANGE}) {
        EXPECT_EQ(phoneError(error), error);
    }
    EXPECT_EQ(phoneError(EAGAIN), 35) << "but for this one";
}

TEST(PhoneError, HasOtherNumbersBehindIt) {
    for (const auto& [error, phone] : std::vector<std::pair<int, int>>{
             {EDEADLK, 11},
             {ENOTSUP, 45},
             {ETIMEDOUT, 60},
             {ELOOP, 62},
             {ENAMETOOLONG, 63},
             {ENOTEMPTY, 66},
             {EUSERS, 68},
             {EDQUOT, 69},
             {ESTALE, 70},
             {ENOLCK, 77},
             {ENOSYS, 78},
             {EOVERFLOW, 84},
             {ECANCELED, 89},
             {EILSEQ, 92},
         }) {
        EXPECT_EQ(phoneError(error), phone) << std::strerror(error);
    }
    EXPECT_EQ(phoneError(EUNATCH), std::nullopt);
}

TEST(LinuxFlags, AreTranslatedOneByOne) {
    EXPECT_EQ(linuxOpenFlags(0x0), O_RDONLY);
    EXPECT_EQ(linuxOpenFlags(0x1 | 0x200 | 0x800), O_WRONLY | O_CREAT | O_EXCL);
    EXPECT_EQ(linuxOpenFlags(0x100000 | 0x100 | 0x1000000), O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    EXPECT_EQ(linuxOpenFlags(0x2 | 0x4 | 0x8 | 0x400), O_RDWR | O_NONBLOCK | O_APPEND | O_TRUNC);
    EXPECT_EQ(linuxOpenFlags(0x10), std::nullopt) << "a lock, which Linux lacks";
    EXPECT_EQ(linuxLookupFlags(0), 0);
    EXPECT_EQ(linuxLookupFlags(0x20), AT_SYMLINK_NOFOLLOW);
    EXPECT_EQ(linuxLookupFlags(0x40), AT_SYMLINK_FOLLOW);
    EXPECT_EQ(linuxLookupFlags(0x1), std::nullopt);
}

/// What the phone's code finds at that place.
template <class T, class Structure>
T found(const Structure& structure, std::size_t place) {
    return emulation::valueAt<T>(std::as_bytes(std::span(&structure, 1)), place);
}

TEST(PhoneStatus, HasWhatLinuxTellsWhereThePhoneLooks) {
    struct stat status {};
    status.st_dev = 20;
    status.st_mode = S_IFREG | 0640;
    status.st_nlink = 2;
    status.st_ino = 1ULL << 40U;
    status.st_uid = 501;
    status.st_gid = 502;
    status.st_rdev = 21;
    status.st_atim = {1'700'000'000, 4};
    status.st_mtim = {1'700'000'001, 5};
    status.st_ctim = {1'700'000'002, 6};
    status.st_size = 5'000'000'000;
    status.st_blocks = 9'765'632;
    status.st_blksize = 4096;
    const auto phone = emulation::phoneStatus(status);
    for (const auto& [place, number] : std::vector<std::pair<std::size_t, int>>{
             {0, 20}, {16, 501}, {20, 502}, {24, 21}, {112, 4096}, {116, 0}, {120, 0}}) {
        EXPECT_EQ(found<int>(phone, place), number) << place;
    }
    EXPECT_EQ(found<std::uint16_t>(phone, 4), 0100640);
    EXPECT_EQ(found<std::uint16_t>(phone, 6), 2);
    for (const auto& [place, number] : std::vector<std::pair<std::size_t, long>>{
             {8, 1L << 40U},
             {32, 1'700'000'000},
             {40, 4},
             {48, 1'700'000'001},
             {56, 5},
             {64, 1'700'000'002},
             {72, 6},
             {80, 1'700'000'002},
             {88, 6},
             {96, 5'000'000'000},
             {104, 9'765'632},
         }) {
        EXPECT_EQ(found<long>(phone, place), number) << place;
    }
}

TEST(PhoneEntry, HasItsNameAtAnotherPlace) {
    dirent entry{};
    entry.d_ino = 7;
    entry.d_off = 8;
    entry.d_type = DT_DIR;
    std::strcpy(entry.d_name, "文件夹");
    const auto phone = emulation::phoneEntry(entry);
    EXPECT_EQ(found<long>(phone, 0), 7);
    EXPECT_EQ(found<long>(phone, 8), 8);
    EXPECT_EQ(found<std::uint16_t>(phone, 16), 31) << "the size, up to the end of the name";
    EXPECT_EQ(found<std::uint16_t>(phone, 18), 9) << "the name's length";
    EXPECT_EQ(found<std::uint8_t>(phone, 20), 4) << "a folder";
    EXPECT_STREQ(phone.name.data(), "文件夹");
}

} // namespace
