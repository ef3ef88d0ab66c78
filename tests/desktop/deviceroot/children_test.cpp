// Children of the process see the device's files as well.
#include "tests/desktop/deviceroot/device_root_fixture.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

namespace {

class ChildrenTest : public DeviceRootTest {
protected:
    ChildrenTest() { write(real("/var/mobile/x"), "from the device"); }

    // The exit status of a program started with this environment.
    static int run(std::vector<const char*> arguments, std::vector<const char*> environment) {
        arguments.push_back(nullptr);
        environment.push_back(nullptr);
        pid_t process = 0;
        const int error = posix_spawn(&process, arguments[0], nullptr, nullptr,
                                      const_cast<char**>(arguments.data()),
                                      const_cast<char**>(environment.data()));
        int status = -1;
        return error == 0 && waitpid(process, &status, 0) == process ? WEXITSTATUS(status) : -1;
    }
};

TEST_F(ChildrenTest, ReadAndWriteInTheShell) {
    EXPECT_EQ(std::system("cat /var/mobile/x > /var/jb/y && test -d /Library"), 0);
    EXPECT_EQ(read(real("/var/jb/y")), "from the device");
}

TEST_F(ChildrenTest, UnpackArchives) {
    ASSERT_EQ(symlink("/var/mobile/x", "/var/mobile/link"), 0);
    ASSERT_EQ(std::system("/usr/bin/tar -cf /var/jb/a.tar -C /var/mobile x link"), 0);
    std::filesystem::create_directory("/var/jb/out");
    ASSERT_EQ(std::system("/usr/bin/tar -xf /var/jb/a.tar -C /var/jb/out"), 0);
    EXPECT_EQ(read(real("/var/jb/out/x")), "from the device");
    EXPECT_EQ(std::filesystem::read_symlink("/var/jb/out/link"), "/var/mobile/x");
    EXPECT_EQ(read("/var/jb/out/link"), "from the device");
}

TEST_F(ChildrenTest, AreProgramsOfTheDevice) {
    std::filesystem::copy_file("/bin/cat", "/var/jb/show");
    EXPECT_EQ(std::system("/var/jb/show /var/mobile/x > /var/jb/shown"), 0);
    EXPECT_EQ(read("/var/jb/shown"), "from the device");
}

TEST_F(ChildrenTest, UseTheDevicesArchiver) {
    write(real("/usr/bin/ar"), "#!/bin/sh\nexit 7\n");
    std::filesystem::permissions(real("/usr/bin/ar"), std::filesystem::perms::all);
    EXPECT_EQ(run({"/usr/bin/ar"}, {}), 7);
}

TEST_F(ChildrenTest, InheritTheRootThroughAnOlderEnvironment) {
    EXPECT_EQ(run({"/bin/sh", "-c", "test -e /var/mobile/x"}, {"PATH=/usr/bin:/bin"}), 0);
    EXPECT_EQ(run({"/bin/sh", "-c", "test -e /var/mobile/x"},
                  {"WENTRA_DEVICE_ROOT=/nowhere", "LD_PRELOAD="}),
              0);
}

TEST_F(ChildrenTest, PreloadTheLibraryOfTheirMachine) {
    EXPECT_EQ(run({"/bin/sh", "-c", "test \"${LD_PRELOAD%%:*}\" = /other.so"},
                  {"WENTRA_DEVICE_ROOT_LIBRARY=/other.so"}),
              0);
}

TEST_F(ChildrenTest, SeeTheRealFilesWithoutARoot) {
    deviceroot_set(nullptr);
    EXPECT_NE(std::system("test -e /var/mobile/x"), 0);
}

TEST_F(ChildrenTest, AreReportedMissing) {
    char* arguments[] = {nullptr};
    pid_t process = 0;
    EXPECT_EQ(posix_spawn(&process, "/var/jb/missing", nullptr, nullptr, arguments, environ),
              ENOENT);
}

} // namespace
