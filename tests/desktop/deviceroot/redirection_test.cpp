// The C library and the C++ library see the device's files.
#include "tests/desktop/deviceroot/device_root_fixture.hpp"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utime.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <memory>

namespace {

namespace fs = std::filesystem;

class RedirectionTest : public DeviceRootTest {
protected:
    RedirectionTest() { write(real("/var/mobile/note"), "hello"); }
};

TEST_F(RedirectionTest, OpensFiles) {
    const int descriptor = open("/var/mobile/made", O_CREAT | O_WRONLY, 0640);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(::write(descriptor, "abc", 3), 3);
    close(descriptor);
    EXPECT_EQ(read(real("/var/mobile/made")), "abc");
    EXPECT_EQ(fs::status(real("/var/mobile/made")).permissions() & fs::perms::others_all,
              fs::perms::none);

    const std::unique_ptr<FILE, int (*)(FILE*)> stream(fopen("/var/mobile/note", "r"), fclose);
    ASSERT_TRUE(stream);
    EXPECT_EQ(fgetc(stream.get()), 'h');
    ASSERT_NE(freopen("/var/mobile/made", "r", stream.get()), nullptr);
    EXPECT_EQ(fgetc(stream.get()), 'a');

    const int folder = open("/", O_RDONLY | O_DIRECTORY);
    const int inside = openat(folder, "/var/mobile/note", O_RDONLY);
    EXPECT_GE(inside, 0);
    close(inside);
    close(folder);
}

TEST_F(RedirectionTest, KnowsFiles) {
    struct stat byPath {};
    struct stat byRealPath {};
    ASSERT_EQ(stat("/var/mobile/note", &byPath), 0);
    ASSERT_EQ(stat(real("/var/mobile/note").c_str(), &byRealPath), 0);
    EXPECT_EQ(byPath.st_ino, byRealPath.st_ino);
    EXPECT_EQ(lstat("/private/var/mobile/note", &byPath), 0);
    EXPECT_EQ(fstatat(AT_FDCWD, "/var/mobile/note", &byPath, 0), 0);
    EXPECT_EQ(access("/var/mobile/note", R_OK), 0);
    EXPECT_EQ(access("/var/LIY", F_OK), -1);
    EXPECT_EQ(errno, ENOENT);
    struct statvfs system {};
    EXPECT_EQ(statvfs("/var/mobile", &system), 0);
    EXPECT_EQ(pathconf("/var/mobile", _PC_NAME_MAX), NAME_MAX);
}

TEST_F(RedirectionTest, ChangesFiles) {
    EXPECT_EQ(chmod("/var/mobile/note", 0600), 0);
    const utimbuf times{1000, 2000};
    EXPECT_EQ(utime("/var/mobile/note", &times), 0);
    EXPECT_EQ(truncate("/var/mobile/note", 4), 0);
    EXPECT_EQ(rename("/var/mobile/note", "/var/jb/moved"), 0);
    EXPECT_EQ(link("/var/jb/moved", "/Library/linked"), 0);
    EXPECT_EQ(read(real("/Library/linked")), "hell");
    EXPECT_EQ(unlink("/var/jb/moved"), 0);
    EXPECT_FALSE(fs::exists(real("/var/jb/moved")));
    EXPECT_EQ(mkdir("/var/LIY", 0755), 0);
    EXPECT_TRUE(fs::is_directory(real("/var/LIY")));
    EXPECT_EQ(rmdir("/var/LIY"), 0);
}

TEST_F(RedirectionTest, FollowsLinksInsideOfTheDevice) {
    ASSERT_EQ(symlink("/var/mobile/note", "/var/jb/link"), 0);
    EXPECT_EQ(read("/var/jb/link"), "hello");
    char target[PATH_MAX] = {};
    EXPECT_EQ(readlink("/var/jb/link", target, sizeof target), 16);
    EXPECT_STREQ(target, "/var/mobile/note");
    char beginning[5] = "....";
    EXPECT_EQ(readlink("/var/jb/link", beginning, 3), 3);
    EXPECT_STREQ(beginning, "/va.");
    char resolved[PATH_MAX];
    EXPECT_STREQ(realpath("/var/jb/link", resolved), "/var/mobile/note");
}

TEST_F(RedirectionTest, StaysInItsFolder) {
    const fs::path before = fs::current_path();
    ASSERT_EQ(chdir("/var/mobile"), 0);
    EXPECT_EQ(fs::current_path(), "/var/mobile");
    EXPECT_EQ(read("note"), "hello");
    EXPECT_EQ(fs::canonical("note"), "/var/mobile/note");
    fs::current_path(before);
}

TEST_F(RedirectionTest, MakesTemporaryFiles) {
    char pattern[] = "/var/mobile/a.XXXXXX";
    const int descriptor = mkstemp(pattern);
    ASSERT_GE(descriptor, 0);
    close(descriptor);
    EXPECT_STRNE(pattern, "/var/mobile/a.XXXXXX");
    EXPECT_TRUE(fs::exists(real(pattern)));
    char folder[] = "//var//jb/XXXXXX";
    ASSERT_EQ(mkdtemp(folder), folder);
    EXPECT_TRUE(fs::is_directory(folder));
}

TEST_F(RedirectionTest, ServesTheStandardLibrary) {
    fs::create_directories("/var/mobile/a/b");
    std::ofstream("/var/mobile/a/b/c") << "text";
    EXPECT_EQ(read(real("/var/mobile/a/b/c")), "text");
    EXPECT_EQ(fs::file_size("/var/mobile/a/b/c"), 4u);
    fs::copy("/var/mobile/a", "/var/jb/copy", fs::copy_options::recursive);
    EXPECT_EQ(read("/var/jb/copy/b/c"), "text");
    fs::rename("/var/jb/copy", "/Library/copy");
    int entries = 0;
    for (const auto& entry : fs::recursive_directory_iterator("/Library/copy")) {
        entries += entry.exists() ? 1 : 0;
    }
    EXPECT_EQ(entries, 2);
    EXPECT_EQ(fs::remove_all("/Library/copy"), 3u);
    EXPECT_FALSE(fs::exists(real("/Library/copy")));
}

TEST_F(RedirectionTest, ListsFolders) {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir("/var/mobile"), closedir);
    EXPECT_TRUE(folder);
    dirent** names = nullptr;
    const int count = scandir("/var/mobile", &names, nullptr, alphasort);
    EXPECT_EQ(count, 3);
    for (int index = 0; index < count; ++index) {
        free(names[index]);
    }
    free(names);
}

TEST_F(RedirectionTest, FailsWhenThePathIsTooLong) {
    const std::string path = "/var/mobile/" + std::string(PATH_MAX - 20, 'x');
    EXPECT_EQ(open(path.c_str(), O_RDONLY), -1);
    EXPECT_EQ(errno, ENAMETOOLONG);
    errno = 0;
    EXPECT_EQ(fopen(path.c_str(), "r"), nullptr);
    EXPECT_EQ(errno, ENAMETOOLONG);
    EXPECT_EQ(rename("/var/mobile/note", path.c_str()), -1);
}

TEST_F(RedirectionTest, ReachesNothingOutsideOfTheRoot) {
    EXPECT_EQ(access("/var/mobile/../../etc/passwd", F_OK), -1);
    EXPECT_EQ(access("/etc/passwd", F_OK), 0);
}

TEST_F(RedirectionTest, LoadsTheDevicesLibraries) {
    void* system = dlopen("libm.so.6", RTLD_NOW);
    Dl_info information;
    ASSERT_NE(dladdr(dlsym(system, "cos"), &information), 0);
    fs::create_directories("/var/jb/usr/lib");
    EXPECT_EQ(dlopen("@rpath/sample.so", RTLD_NOW), nullptr);
    fs::copy_file(information.dli_fname, "/var/jb/usr/lib/sample.so");
    for (const char* name : {"@rpath/sample.so", "/var/jb/usr/lib/sample.so"}) {
        void* library = dlopen(name, RTLD_NOW);
        ASSERT_NE(library, nullptr) << dlerror();
        EXPECT_NE(library, system);
        EXPECT_NE(dlsym(library, "cos"), nullptr);
        dlclose(library);
    }
    EXPECT_EQ(dlopen("@rpath/missing.so", RTLD_NOW), nullptr);
    dlclose(system);
}

} // namespace
