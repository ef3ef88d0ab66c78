// The pad that collects what is copied while Settings is open.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

/// A device whose preferences switch the pad on before Settings starts.
class Device {
public:
    explicit Device(const std::string& value) {
        folder_.write("var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist",
                      "<plist><dict><key>kqxfztb</key>" + value + "</dict></plist>");
    }
    [[nodiscard]] std::string root() const { return folder_.path(); }
    [[nodiscard]] std::filesystem::path file() const {
        return folder_.path() / "var/mobile/Documents/01Aaa复制内容.txt";
    }

private:
    support::TemporaryFolder folder_;
};

class ScratchPad : public testing::Test {
protected:
    Json text() { return phone.find({{"class", "UITextView"}}).at(0); }
    Json panel() { return phone.node(phone.message(text(), "superview")); }
    Json trash() { return phone.find({{"class", "TrashButton"}}).at(0); }
    [[nodiscard]] std::string file() const { return support::readFile(device.file()); }

    Device device{"<true/>"};
    tests::Phone phone{{"--app", "settings", "--root", device.root()}};
};

TEST_F(ScratchPad, LooksAsDescribed) {
    const Json panel = this->panel();
    EXPECT_EQ(panel["frame"], (Json{140, 230, 270, 400}));
    EXPECT_EQ(panel["backgroundColor"], "#0000000d");
    EXPECT_EQ(panel["hidden"], true);
    const Json title = phone.find({{"text", "临时粘贴板"}}).at(0);
    EXPECT_EQ(title["frame"][0], 103);
    EXPECT_NEAR(title["frame"][1].get<double>(), 3, 1e-9);
    EXPECT_EQ(title["font"]["size"], 12);
    EXPECT_EQ(title["textColor"], "#ff8000ff");
    EXPECT_EQ(phone.node(text())["frame"], (Json{13.5, 20, 243, 368}));
    const Json button = trash();
    EXPECT_EQ(button["frame"], (Json{140, 784, 85, 50}));
    EXPECT_EQ(button["title"], "Hide(隐藏)");
    EXPECT_EQ(button["tag"], 99);
    EXPECT_EQ(button["hidden"], true);
    EXPECT_EQ(button["backgroundColor"], "#b3cce6ff");
}

TEST_F(ScratchPad, CollectsWhatIsCopiedInItsTextAndItsFile) {
    phone.copy("第一");
    EXPECT_EQ(panel()["hidden"], false);
    phone.copy("第一");
    phone.copy("a\nb");
    EXPECT_EQ(phone.node(text())["text"], "\n第一\n第一\na\nb");
    EXPECT_EQ(file(), "\n第一\n第一\na\nb");
    phone.copy({{"units", {0xD83D}}});
    phone.copy("after half a character");
    EXPECT_EQ(file(), "\n第一\n第一\na\nb\n\uFFFD\nafter half a character");
}

TEST_F(ScratchPad, KeepsWhatTheUserHasWrittenIntoIt) {
    phone.copy("copied");
    phone.tap(text());
    phone.result({{"do", "type"}, {"text", "!"}});
    phone.copy("more");
    EXPECT_EQ(file(), "\ncopied!\nmore");
}

TEST_F(ScratchPad, TakesNoNoticeOfPictures) {
    const std::string picture = phone.temporaryFolder() / "screen.png";
    phone.copy(nullptr);
    phone.result({{"do", "screenshot"}, {"file", picture}});
    phone.result({{"do", "pasteboard"}, {"image", picture}});
    EXPECT_EQ(panel()["hidden"], true);
    EXPECT_FALSE(std::filesystem::exists(device.file()));
}

TEST_F(ScratchPad, GoesWhenItIsDroppedOnTheButtonAndComesBackWithTheNextCopy) {
    phone.copy("x");
    phone.slide({{300, 260}, {300, 500}});
    EXPECT_EQ(panel()["frame"][1], 470);
    EXPECT_EQ(panel()["hidden"], true);
    phone.copy("y");
    EXPECT_EQ(panel()["hidden"], false);
}

TEST_F(ScratchPad, SecondLoadingMakesASecondPad) {
    phone.message(phone.message(phone.window(), "rootViewController"), "viewDidLoad");
    phone.copy("x");
    const Json texts = phone.find({{"class", "UITextView"}});
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0]["text"], "\nx");
    EXPECT_EQ(texts[1]["text"], "\nx");
}

TEST_F(ScratchPad, GoesOnWhenTheFileCannotBeWritten) {
    std::filesystem::create_directories(device.file());
    phone.copy("x");
    EXPECT_EQ(phone.node(text())["text"], "\nx");
    EXPECT_TRUE(std::filesystem::is_directory(device.file()));
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(ScratchPad, BeginsAnewWithTheProcess) {
    std::ofstream(device.file()) << "of yesterday";
    phone.copy("x");
    EXPECT_EQ(file(), "\nx");
}

TEST(ScratchPadSwitchedOff, IsNotThere) {
    const Device device("<false/>");
    tests::Phone phone({"--app", "settings", "--root", device.root()});
    phone.copy("x");
    EXPECT_TRUE(phone.find({{"class", "UITextView"}}).empty());
    EXPECT_TRUE(phone.find({{"class", "TrashButton"}}).empty());
    EXPECT_FALSE(std::filesystem::exists(device.file()));
}

} // namespace
