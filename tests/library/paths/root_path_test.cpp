// Tests where the jailbreak's files are found, with its library, a part of it, or without one.
#include "library/paths/root_path.hpp"

#include "desktop/deviceroot/deviceroot.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "tests/support/fresh_process.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <string>

namespace wentra::paths {
namespace {

namespace fs = std::filesystem;

class RootPath : public testing::Test {
protected:
    void makeFolder(const char* devicePath) {
        fs::create_directories(device_.path() / (devicePath + 1));
    }

    void install(const char* library) {
        const fs::path libraries = fs::read_symlink("/proc/self/exe").parent_path() / "../lib";
        makeFolder("/usr/lib");
        fs::copy_file(libraries / ("libroot_library_" + std::string(library) + ".so"),
                      device_.path() / "usr/lib/libroot.dylib");
    }

    template <typename Body>
    std::string onDevice(Body body) {
        return support::inFreshProcess([&]() -> std::string {
            if (!deviceroot_set(device_.path().c_str())) {
                return "no device root";
            }
            return body();
        });
    }

    std::string jbrootPath(const char* path) {
        return onDevice([path] {
            std::array<char, 1024> buffer{};
            return std::string(libroot_dyn_jbrootpath(path, buffer.data()));
        });
    }

    std::string rootfsPath(const char* path) {
        return onDevice([path] {
            std::array<char, 1024> buffer{};
            return std::string(libroot_dyn_rootfspath(path, buffer.data()));
        });
    }

    std::string prefixes() {
        return onDevice([] {
            return std::string(libroot_dyn_get_root_prefix()) + "|" +
                   libroot_dyn_get_jbroot_prefix() + "|" + libroot_dyn_get_boot_uuid();
        });
    }

    /// Whether what the preference file says is so when it lies in that folder of the device.
    bool isReadIn(const std::string& folder) {
        const std::string file = folder + preferenceFile;
        device_.write(file.substr(1), "<plist><dict><key>wbthxz</key><true/></dict></plist>");
        const std::string told = onDevice([] {
            const auto preferences = preferences::Preferences::read();
            return std::string(preferences.on(preferences::keys.correctTerms) ? "on" : "off");
        });
        fs::remove(device_.path() / file.substr(1));
        return told == "on";
    }

    support::TemporaryFolder device_;
};

TEST_F(RootPath, FallbackPrefixesFollowTheMarkerFolder) {
    EXPECT_EQ(prefixes(), "||00000000-0000-0000-0000-000000000000");
    makeFolder("/var/jb");
    EXPECT_EQ(prefixes(), "||00000000-0000-0000-0000-000000000000");
    makeFolder("/var/LIY");
    EXPECT_EQ(prefixes(), "|/var/jb|00000000-0000-0000-0000-000000000000");
}

TEST_F(RootPath, FallbackPathsWithoutTheMarkerFolderAreUnchanged) {
    for (const char* path : {"/Library/x", "/var/mobile/x", "relative", ""}) {
        EXPECT_EQ(jbrootPath(path), path);
        EXPECT_EQ(rootfsPath(path), path);
    }
}

TEST_F(RootPath, FallbackPathsWithTheMarkerFolder) {
    makeFolder("/var/LIY");
    EXPECT_EQ(jbrootPath("/Library/x"), "/var/jb/Library/x");
    EXPECT_EQ(jbrootPath("/var/mobile/x"), "/var/mobile/x");
    EXPECT_EQ(jbrootPath("/var/mobilex"), "/var/mobilex"); // eleven characters decide
    EXPECT_EQ(jbrootPath("/var/mobil"), "/var/jb/var/mobil");
    EXPECT_EQ(jbrootPath("relative"), "relative");
    EXPECT_EQ(rootfsPath("/var/jb/Library/x"), "/Library/x");
    EXPECT_EQ(rootfsPath("/Library/x"), "/Library/x");
    EXPECT_EQ(rootfsPath("var/jb/x"), "var/jb/x");
}

TEST_F(RootPath, NullPathsGiveNull) {
    const auto isNull = [] {
        std::array<char, 1024> buffer{};
        return std::string(libroot_dyn_jbrootpath(nullptr, buffer.data()) == nullptr &&
                                   libroot_dyn_rootfspath(nullptr, nullptr) == nullptr
                               ? "null"
                               : "not null");
    };
    EXPECT_EQ(onDevice(isNull), "null");
}

TEST_F(RootPath, AResultWithoutBufferBelongsToTheCaller) {
    makeFolder("/var/LIY");
    EXPECT_EQ(onDevice([] {
                  char* path = libroot_dyn_jbrootpath("/a", nullptr);
                  std::string result = path;
                  std::free(path);
                  path = libroot_dyn_rootfspath("/var/jb/b", nullptr);
                  result += path;
                  std::free(path);
                  return result;
              }),
              "/var/jb/a/b");
}

TEST_F(RootPath, LongPathsAreCutToTheBuffer) {
    makeFolder("/var/LIY");
    const std::string path = "/" + std::string(3000, 'x');
    EXPECT_EQ(jbrootPath(path.c_str()), ("/var/jb" + path).substr(0, 1023));
    EXPECT_EQ(rootfsPath(path.c_str()), path.substr(0, 1023));
}

TEST_F(RootPath, TheCompleteLibraryAnswersEverything) {
    install("complete");
    EXPECT_EQ(prefixes(), "/its-root|/its-jbroot|11111111-2222-3333-4444-555555555555");
    EXPECT_EQ(jbrootPath("/a"), "/its-jbroot-of/a");
    EXPECT_EQ(rootfsPath("/a"), "/its-root-of/a");
}

TEST_F(RootPath, FallbacksUseThePrefixesOfAPartialLibrary) {
    install("partial");
    EXPECT_EQ(prefixes(), "/its-root|/Library/its-jbroot|00000000-0000-0000-0000-000000000000");
    EXPECT_EQ(jbrootPath("/a"), "/Library/its-jbroot/a");
    EXPECT_EQ(rootfsPath("/Library/its-jbroot/a"), "/a");
    EXPECT_EQ(rootfsPath("/a"), "/its-root/a");
}

TEST_F(RootPath, TheMarkerFolderKeepsUserDataOutOfAPartialLibrarysPrefix) {
    install("partial");
    EXPECT_EQ(jbrootPath("/var/mobile/x"), "/Library/its-jbroot/var/mobile/x");
    makeFolder("/var/LIY");
    EXPECT_EQ(jbrootPath("/var/mobile/x"), "/var/mobile/x");
    EXPECT_EQ(jbrootPath("/a"), "/Library/its-jbroot/a");
    EXPECT_EQ(rootfsPath("/Library/its-jbroot/a"), "/a");
    EXPECT_EQ(rootfsPath("/var/mobile/x"), "/its-root/var/mobile/x");
}

TEST_F(RootPath, TheLibraryIsLookedUpOncePerProcess) {
    EXPECT_EQ(onDevice([this] {
                  libroot_load();
                  install("complete");
                  return std::string(libroot_dyn_get_root_prefix());
              }),
              "");
}

TEST_F(RootPath, ThePreferenceFileFollowsTheLayoutAtEachCall) {
    const std::string rootful = "/var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist";
    EXPECT_EQ(onDevice([this] {
                  const std::string before = preferencePath();
                  makeFolder("/var/jb");
                  return before + "|" + preferencePath();
              }),
              rootful + "|/var/jb" + rootful);
}

TEST_F(RootPath, ThePreferenceFileIsReadBelowAPartialLibrarysPrefix) {
    install("partial");
    EXPECT_TRUE(isReadIn("/Library/its-jbroot"));
    EXPECT_FALSE(isReadIn(""));
    makeFolder("/var/LIY");
    EXPECT_FALSE(isReadIn("/Library/its-jbroot"));
    EXPECT_TRUE(isReadIn(""));
    makeFolder("/var/jb");
    EXPECT_FALSE(isReadIn(""));
    EXPECT_TRUE(isReadIn("/var/jb"));
}

TEST_F(RootPath, TheRootfulFormGoesThroughTheLibrary) {
    install("complete");
    EXPECT_EQ(onDevice(preferencePath),
              "/its-jbroot-of/var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist");
    EXPECT_EQ(onDevice([] { return bundlePath("a/b.png"); }),
              "/its-jbroot-of/Library/PreferenceBundles/hovtanprefs.bundle/a/b.png");
    makeFolder("/var/jb");
    EXPECT_EQ(onDevice([] { return bundlePath("a/b.png"); }),
              "/var/jb/Library/PreferenceBundles/hovtanprefs.bundle/a/b.png");
}

TEST_F(RootPath, AFileInPlaceOfTheFolderIsNotTheRootlessLayout) {
    device_.write("var/jb", "");
    EXPECT_EQ(onDevice([] { return std::string(isRootless() ? "rootless" : "rootful"); }),
              "rootful");
}

} // namespace
} // namespace wentra::paths
