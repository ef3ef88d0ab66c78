// Pictures of the screen go into the photo library; several become a tall one.
#include "tests/features/capture/capture_panel.hpp"

#include <array>
#include <fstream>

namespace {

using tests::CapturePanel;
using tests::Json;

/// Width and height of a PNG in pixels.
std::array<unsigned, 2> sizeOf(const std::string& bytes) {
    const auto number = [&](std::size_t at) {
        unsigned value = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            value = value << 8U | static_cast<unsigned char>(bytes.at(at + i));
        }
        return value;
    };
    EXPECT_TRUE(bytes.starts_with("\x89PNG"));
    return {number(16), number(20)};
}

class Pictures : public testing::Test {
protected:
    /// The bytes of the one photo that is new.
    std::string photo() {
        const auto photos = phone.events("photo");
        EXPECT_EQ(photos.size(), 1U);
        return photos.empty() ? "" : support::readFile(phone.real(photos[0]["file"]));
    }

    CapturePanel phone;
};

TEST_F(Pictures, ATapSavesTheScreenWithoutTheControl) {
    phone.tap("应用录屏");
    const auto collected = phone.panel("screenshot");
    phone.events("photo");
    phone.tapLabelled("截图");
    const std::string tapped = photo();
    EXPECT_EQ(sizeOf(tapped), (std::array{1170U, 2532U}));
    EXPECT_EQ(phone.message(phone.container(), "isHidden"), false) << "it is back";
    phone.message(phone.container(), "setAlpha:", {0});
    phone.panel("takeScreenshot");
    EXPECT_TRUE(photo() == tapped);
    EXPECT_EQ(phone.message(collected, "size"), Json::parse(R"({"size":[390,844]})"));
}

TEST_F(Pictures, FilesNeverTakeThePlaceOfOthers) {
    for (const char* name : {"IMG_0001.png", "IMG_0002.png"}) {
        phone.panel("takeScreenshot");
        const auto photos = phone.events("photo");
        ASSERT_EQ(photos.size(), 1U);
        EXPECT_EQ(photos[0]["file"], "/var/mobile/Media/DCIM/100APPLE/" + std::string(name));
    }
}

TEST_F(Pictures, WhatIsCollectedIsStitched) {
    phone.tap("应用录屏");
    phone.tapLabelled("收集长图");
    phone.tapLabelled("收集长图");
    EXPECT_EQ(phone.message(phone.panel("screenshotsArray"), "count"), 2);
    EXPECT_EQ(phone.find({{"title", "2"}, {"label", "收集长图"}}).size(), 1U)
        << "it tells how many";
    EXPECT_TRUE(phone.events("photo").empty());
    phone.tapLabelled("拼接长图");
    EXPECT_EQ(sizeOf(photo()), (std::array{1170U, 3U * (844 + 752)}));
    EXPECT_EQ(phone.message(phone.panel("screenshotsArray"), "count"), 0);
}

TEST_F(Pictures, StitchingIsNotLimitedByTheHeight) {
    const Json picture = phone.panel("screenshot");
    phone.panel("setScreenshotsArray:",
                {phone.message(
                    phone.message({{"class", "NSArray"}}, "arrayWithArray:", {Json(20, picture)}),
                    "mutableCopy")});
    phone.panel("stitchImages");
    EXPECT_EQ(sizeOf(photo()), (std::array{1170U, 3U * (844 + 19 * 752)}));
}

TEST_F(Pictures, NothingToStitchGivesNothing) {
    phone.panel("stitchImages");
    phone.panel("setScreenshotsArray:", {nullptr});
    phone.panel("stitchImages");
    phone.panel("takeSnapshot");
    phone.panel("setScreenshotsArray:", {Json::array({"no picture"})});
    phone.panel("stitchImages");
    const Json events = phone.result({{"do", "events"}});
    EXPECT_EQ(events, Json::array());
}

TEST(PicturesWithoutAWord, OfWhatTheyAreForAreNotSaved) {
    CapturePanel phone("plain");
    phone.message(phone.window(), "setRootViewController:",
                  {phone.message({{"class", "UIViewController"}}, "new")});
    phone.panel("takeScreenshot");
    phone.advance(1);
    const Json alert = phone.alert();
    EXPECT_EQ(alert["title"], "错误");
    EXPECT_EQ(alert["message"], "这个应用没有声明相册用途，系统不允许它存储图片");
    EXPECT_TRUE(phone.events("photo").empty());
}

TEST_F(Pictures, WhatCannotBeSavedIsTold) {
    const auto folder = phone.real("/var/mobile/Media");
    std::filesystem::create_directories(folder.parent_path());
    std::ofstream(folder) << "in the way";
    phone.panel("takeScreenshot");
    phone.advance(1);
    EXPECT_EQ(phone.alert()["title"], "错误");
    EXPECT_TRUE(phone.events("photo").empty());
    EXPECT_EQ(support::readFile(folder), "in the way");
}

} // namespace
