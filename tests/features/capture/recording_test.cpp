// The recorder behind the panel's buttons, and its control on the screen.
#include "tests/features/capture/capture_panel.hpp"

namespace {

using tests::CapturePanel;
using tests::Json;

class Recording : public testing::Test {
protected:
    /// The events of the recorder since the last question about any: their states.
    std::vector<std::string> states() {
        std::vector<std::string> all;
        for (const Json& event : phone.events("recording")) {
            all.push_back(event["state"]);
            file = event.value("file", file);
        }
        return all;
    }
    /// Lines about it in the system log.
    std::vector<Json> complaints() {
        auto lines = phone.events("log");
        std::erase_if(lines, [](const Json& line) {
            return !line["text"].get<std::string>().starts_with("停止录制错误 : ");
        });
        return lines;
    }
    bool isControlShown() { return phone.message(phone.container(), "superview") != nullptr; }
    void stop() {
        phone.tap("结束录屏");
        phone.advance(1);
    }

    CapturePanel phone{"chat", {{"屏幕录制提示", "正在录制"}, {"录制字体大小", 15}}};
    std::string file;
};

TEST_F(Recording, TheControlStandsWhereItBelongs) {
    phone.tap("应用录屏");
    const Json container = phone.node(phone.container());
    EXPECT_EQ(container["frame"], Json::parse("[220,50,140,60]"));
    const Json& parts = container["children"];
    EXPECT_EQ(parts[0]["frame"], Json::parse("[0,0,36,26]"));
    EXPECT_EQ(parts[1]["frame"], Json::parse("[37,0,36,26]"));
    const Json label = phone.node(phone.panel("recordingLabel"));
    EXPECT_EQ(label["frame"], Json::parse("[0,22.5,140,32]"));
    EXPECT_EQ(label["text"], "正在录制");
    EXPECT_EQ(label["font"]["size"], 15);
    EXPECT_EQ(phone.message(phone.panel("screenRecorder"), "isMicrophoneEnabled"), true);
    EXPECT_EQ(states(), std::vector<std::string>{"started"});
}

TEST_F(Recording, AFilmIsShownKeptAndLeavesNoControl) {
    phone.tap("应用录屏");
    phone.advance(1);
    stop();
    EXPECT_EQ(states(), (std::vector<std::string>{"started", "stopped"}));
    EXPECT_EQ(support::readFile(phone.real(file)).substr(0, 4), "\x1A\x45\xDF\xA3") << "WebM";
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "RPPreviewViewController");
    EXPECT_TRUE(isControlShown());
    phone.Phone::tap(phone.find({{"text", "存储"}, {"visible", true}}).at(0));
    phone.advance(1);
    const auto photos = phone.events("photo");
    ASSERT_EQ(photos.size(), 1U);
    EXPECT_EQ(support::readFile(phone.real(photos[0]["file"])),
              support::readFile(phone.real(file)));
    EXPECT_NE(phone.result({{"do", "screens"}}).back(), "RPPreviewViewController");
    EXPECT_FALSE(isControlShown());
}

TEST_F(Recording, ARefusedStartIsOnlyLoggedAtTheStop) {
    phone.result({{"do", "recorder"}, {"fails", true}});
    phone.tap("应用录屏");
    EXPECT_EQ(states(), std::vector<std::string>{"refused"});
    EXPECT_EQ(phone.alert(), nullptr);
    EXPECT_FALSE(isControlShown()) << "there is nothing to stop";
    stop();
    EXPECT_EQ(complaints().size(), 1U);
    EXPECT_NE(phone.result({{"do", "screens"}}).back(), "RPPreviewViewController");
}

TEST_F(Recording, StoppingWhatNeverRanIsLogged) {
    stop();
    EXPECT_EQ(complaints().size(), 1U);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(Recording, AFailedStopKeepsTheFilm) {
    phone.tap("应用录屏");
    phone.result({{"do", "recorder"}, {"fails", true}});
    stop();
    EXPECT_EQ(states(), (std::vector<std::string>{"started", "stopped"}));
    EXPECT_TRUE(std::filesystem::exists(phone.real(file)));
    EXPECT_NE(phone.result({{"do", "screens"}}).back(), "RPPreviewViewController");
}

TEST_F(Recording, OneThatEndedByItselfMakesRoomForTheNext) {
    phone.tap("应用录屏");
    EXPECT_EQ(phone.result({{"do", "recorder"}, {"interrupt", true}})["recording"], false);
    const Json former = phone.container();
    phone.tap("应用录屏");
    EXPECT_EQ(phone.message(former, "superview"), nullptr);
    EXPECT_TRUE(isControlShown());
    EXPECT_EQ(states(), (std::vector<std::string>{"started", "stopped", "started"}));
}

TEST_F(Recording, TheControlOfOneThatEndedByItselfGoesAtTheStop) {
    phone.tap("应用录屏");
    phone.result({{"do", "recorder"}, {"interrupt", true}});
    stop();
    EXPECT_EQ(complaints().size(), 1U);
    EXPECT_FALSE(isControlShown());
}

TEST_F(Recording, ASecondStartKeepsTheControlOfTheFirst) {
    phone.tap("应用录屏");
    phone.tap("应用录屏");
    EXPECT_EQ(states(), (std::vector<std::string>{"started", "refused"}));
    EXPECT_TRUE(isControlShown()) << "the first goes on";
    stop();
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "RPPreviewViewController");
}

TEST(RecordingWithoutAWord, OfWhatTheMicrophoneIsForIsSilent) {
    CapturePanel phone("plain");
    phone.tap("应用录屏");
    EXPECT_EQ(phone.message(phone.panel("screenRecorder"), "isMicrophoneEnabled"), false);
    EXPECT_EQ(phone.message(phone.panel("screenRecorder"), "isRecording"), true);
}

TEST_F(Recording, TheEndOfTheHostIsTheEndOfTheFilm) {
    phone.tap("应用录屏");
    phone.advance(0.5);
    phone.closeInput();
    EXPECT_EQ(phone.wait(), 0);
    const auto film = phone.real("/var/mobile/Library/ReplayKit/recording-1.webm");
    EXPECT_NE(support::readFile(film).find("\x1C\x53\xBB\x6B"), std::string::npos) << "its index";
}

} // namespace
