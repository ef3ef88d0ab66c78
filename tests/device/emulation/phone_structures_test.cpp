// Numbers and structures of the phone's system.
#include "device/emulation/phone_numbers.hpp"
#include "device/emulation/phone_structures.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>

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
    EXPECT_EQ(phoneError(ENOTEMPTY), 66);
    EXPECT_EQ(phoneError(ELOOP), 62);
    EXPECT_EQ(phoneError(ENAMETOOLONG), 63);
    EXPECT_EQ(phoneError(ENOTSUP), 45);
    EXPECT_EQ(phoneError(ETIMEDOUT), 60);
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
    EXPECT_EQ(linuxLookupFlags(0x1), std::nullopt);
}

TEST(PhoneStatus, HasWhatLinuxTells) {
    struct stat status {};
    status.st_mode = S_IFREG | 0640;
    status.st_nlink = 2;
    status.st_ino = 1ULL << 40U;
    status.st_size = 5'000'000'000;
    status.st_mtim = {1'700'000'000, 5};
    status.st_ctim = {1'700'000'001, 6};
    const auto phone = emulation::phoneStatus(status);
    EXPECT_EQ(phone.mode, 0100640);
    EXPECT_EQ(phone.links, 2);
    EXPECT_EQ(phone.inode, 1ULL << 40U);
    EXPECT_EQ(phone.size, 5'000'000'000);
    EXPECT_EQ(phone.modified.seconds, 1'700'000'000);
    EXPECT_EQ(phone.modified.nanoseconds, 5);
    EXPECT_EQ(phone.born.seconds, 1'700'000'001);
}

TEST(PhoneEntry, HasItsNameAtAnotherPlace) {
    dirent entry{};
    entry.d_ino = 7;
    entry.d_type = DT_DIR;
    std::strcpy(entry.d_name, "文件夹");
    const auto phone = emulation::phoneEntry(entry);
    EXPECT_EQ(phone.inode, 7U);
    EXPECT_EQ(phone.kind, 4);
    EXPECT_EQ(phone.nameLength, 9);
    EXPECT_STREQ(phone.name.data(), "文件夹");
}

} // namespace
