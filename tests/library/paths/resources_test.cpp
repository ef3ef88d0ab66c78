// Tests where replaceable pictures and tables are looked for in either layout.
#include "library/paths/resources.hpp"

#include "desktop/deviceroot/deviceroot.hpp"
#include "tests/support/fresh_process.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <string>

namespace wentra::paths {
namespace {

const std::string bundle = "/Library/PreferenceBundles/hovtanprefs.bundle/";
const std::string documents = "/var/mobile/Documents/";

class Resources : public testing::Test {
protected:
    void makeRootless() { std::filesystem::create_directories(device_.path() / "var/jb"); }

    void put(const std::string& devicePath) { device_.write(devicePath.substr(1), "image"); }

    template <typename Body>
    std::string onDevice(Body body) {
        return support::inFreshProcess([&] {
            deviceroot_set(device_.path().c_str());
            return body();
        });
    }

    std::string ballImage() {
        return onDevice([] { return ballImagePath().value_or("none"); });
    }

    support::TemporaryFolder device_;
};

TEST_F(Resources, TheColourListHasTwoForms) {
    EXPECT_EQ(onDevice(colourListPath), bundle + "colors.plist");
    makeRootless();
    EXPECT_EQ(onDevice(colourListPath), "/var/jb" + bundle + "colors.plist");
}

TEST_F(Resources, IconsHaveTheRootfulFormOnly) {
    makeRootless();
    EXPECT_EQ(onDevice(iconFolder), bundle + "tubiao/");
    EXPECT_EQ(onDevice([] { return iconPath("复制"); }), bundle + "tubiao/复制.png");
    std::filesystem::create_directories(device_.path() / "var/LIY");
    EXPECT_EQ(onDevice(iconFolder), "/var/jb" + bundle + "tubiao/");
}

TEST_F(Resources, TheFirstBallImageThatExistsIsTaken) {
    EXPECT_EQ(ballImage(), "none");
    // From the last choice to the first.
    for (const char* name :
         {"AAxfq.jpeg", "AAxfq.jpg", "AAxfq.png", "xfq.jpeg", "xfq.jpg", "xfq.png"}) {
        put(bundle + name);
        EXPECT_EQ(ballImage(), bundle + name);
    }
}

TEST_F(Resources, TheRootlessBallImageMayLieAmongTheDocuments) {
    makeRootless();
    put(bundle + "xfq.png");
    put("/var/jb" + bundle + "AAxfq.png");
    EXPECT_EQ(ballImage(), "none");
    for (const char* name : {"AAxfq.jpeg", "AAxfq.jpg", "AAxfq.png"}) {
        put(documents + name);
        EXPECT_EQ(ballImage(), documents + name);
    }
    put("/var/jb" + bundle + "xfq.jpeg");
    EXPECT_EQ(ballImage(), "/var/jb" + bundle + "xfq.jpeg");
}

TEST_F(Resources, PanelImagesComeFromTheDocumentsFirst) {
    makeRootless();
    std::string expected;
    for (const char* name : {"AAzerk.jpg", "AAzerk.png", "AAzerk.jpeg"}) {
        expected += documents + name + "\n";
    }
    for (const char* name : {"AAzerk.png", "AAzerk.jpeg", "AAzerk.jpg"}) {
        expected += "/var/jb" + bundle + name + "\n";
    }
    EXPECT_EQ(onDevice([] {
                  std::string lines;
                  for (const std::string& path : panelImageCandidates()) {
                      lines += path + "\n";
                  }
                  return lines;
              }),
              expected);
}

} // namespace
} // namespace wentra::paths
