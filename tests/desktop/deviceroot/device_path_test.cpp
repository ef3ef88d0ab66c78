// Which paths are redirected, and where to.
#include "desktop/deviceroot/device_path.hpp"
#include "tests/desktop/deviceroot/device_root_fixture.hpp"

using desktop::DevicePath;
using desktop::devicePathOf;

namespace {

using DevicePathTest = DeviceRootTest;

TEST_F(DevicePathTest, LeadsUnderTheRoot) {
    const struct {
        const char* path;
        const char* place;
    } cases[] = {
        {"/var/mobile", "/var/mobile"},
        {"/var/mobile/", "/var/mobile/"},
        {"/var/mobile/.", "/var/mobile/"},
        {"/var/mobile/Library/x.plist", "/var/mobile/Library/x.plist"},
        {"/var/jb", "/var/jb"},
        {"/var/LIY", "/var/LIY"},
        {"/Library/PreferenceBundles/a", "/Library/PreferenceBundles/a"},
        {"//var///mobile//x", "/var/mobile/x"},
        {"/var/./mobile/./x", "/var/mobile/x"},
        {"/var/tmp/../mobile/x", "/var/mobile/x"},
        {"/../var/mobile", "/var/mobile"},
        {"/private/var/mobile/x", "/var/mobile/x"},
        {"/private//var/./jb", "/var/jb"},
        {"/var/mobile/../../etc/passwd", "/etc/passwd"},
        {"/var/mobile/../../../../../..", ""},
        {"/var/mobile/..x/...", "/var/mobile/..x/..."},
    };
    for (const auto& [path, place] : cases) {
        EXPECT_EQ(DevicePath(path).get(), real(place).string()) << path;
    }
}

TEST_F(DevicePathTest, LeavesOtherPathsAlone) {
    for (const char* path : {"/var/mobilex", "/var/jbx/a", "/Librar", "/var", "/var/", "/", "",
                             "var/mobile", "./var/mobile", "../var/mobile", "/tmp/var/mobile",
                             "/etc//passwd", "/private/var", "/private/etc", "/usr/bin/arx"}) {
        const DevicePath devicePath(path);
        EXPECT_EQ(devicePath.get(), path);
    }
    EXPECT_EQ(DevicePath(nullptr).get(), nullptr);
}

TEST_F(DevicePathTest, PrefersTheDevicesArchivers) {
    EXPECT_STREQ(DevicePath("/usr/bin/tar").get(), "/usr/bin/tar");
    write(real("/usr/bin/tar"), "");
    EXPECT_EQ(DevicePath("/usr/bin/tar").get(), real("/usr/bin/tar"));
    EXPECT_STREQ(DevicePath("/usr/bin/ar").get(), "/usr/bin/ar");
}

TEST_F(DevicePathTest, RefusesPathsThatAreTooLong) {
    const std::string name(PATH_MAX - 20, 'x');
    EXPECT_TRUE(DevicePath(("/var/mobile/" + name).c_str()).isTooLong());
    EXPECT_FALSE(DevicePath(("/var/tmp/" + name).c_str()).isTooLong());
    EXPECT_FALSE(DevicePath(("/var/mobile/" + std::string(5000, '/') + "x").c_str()).isTooLong());
}

TEST_F(DevicePathTest, WithoutRootChangesNothing) {
    deviceroot_set(nullptr);
    EXPECT_STREQ(DevicePath("/var/mobile/x").get(), "/var/mobile/x");
    EXPECT_STREQ(deviceroot_get(), "");
}

TEST_F(DevicePathTest, RefusesRelativeRoots) {
    const std::string before = deviceroot_get();
    EXPECT_FALSE(deviceroot_set("somewhere"));
    EXPECT_FALSE(deviceroot_set(("/" + std::string(PATH_MAX, 'x')).c_str()));
    EXPECT_EQ(deviceroot_get(), before);
}

TEST_F(DevicePathTest, FindsTheDevicePathOfARealOne) {
    EXPECT_STREQ(devicePathOf(real("/var/mobile/x").c_str()), "/var/mobile/x");
    EXPECT_STREQ(devicePathOf(real("/Library").c_str()), "/Library");
    for (const std::string& path : {real("/etc/passwd").string(), real("/var/mobilex").string(),
                                    std::string("/var/mobile/x"), std::string("x")}) {
        EXPECT_EQ(devicePathOf(path.c_str()), path);
    }
}

} // namespace
