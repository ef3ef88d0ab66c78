// Speech is taken down in Settings, while a finger rests on the button that starts recordings.
#include "tests/features/capture/capture_panel.hpp"

namespace {

using tests::CapturePanel;
using tests::Json;

class Dictation : public testing::Test {
protected:
    void recognize(Json settings) {
        settings["do"] = "recognizer";
        phone.result(settings);
    }
    /// The text of the alert after a finger has rested on the button that long.
    Json dictated(double seconds) {
        phone.press("应用录屏", seconds);
        phone.advance(1);
        const Json shown = phone.alert();
        EXPECT_EQ(shown["title"], "语音识别结果");
        phone.choose("确认");
        return shown["message"];
    }

    CapturePanel phone{"settings"};
};

TEST_F(Dictation, APersonIsAskedOnce) {
    phone.advance(1);
    EXPECT_EQ(phone.alert()["title"], "语音识别授权成功");
    phone.choose("OK");
    EXPECT_EQ(phone.result({{"do", "defaults"}, {"key", "wasPromptedForSpeechRecognition"}}), true);
    phone.panel("viewDidAppear:", {false});
    phone.advance(1);
    EXPECT_EQ(phone.alert(), nullptr);
}

TEST_F(Dictation, WhatIsSaidIsShown) {
    phone.choose("OK");
    recognize({{"hears", "今天天气很好"}});
    EXPECT_EQ(dictated(6), "今天天气很好");
    const auto heard = phone.events("recognition");
    ASSERT_GT(heard.size(), 2U);
    EXPECT_EQ(heard.back()["final"], true);
    EXPECT_LT(heard.front()["text"].get<std::string>().size(), std::string("今天天气很好").size())
        << "it comes little by little";
    EXPECT_EQ(phone.panel("recognitionTask"), nullptr);
    EXPECT_TRUE(phone.swallowed().empty());
    recognize({{"hears", ""}});
    EXPECT_EQ(dictated(1), nullptr) << "nothing of what was said before";
}

TEST_F(Dictation, ACancelledTouchEndsTheListening) {
    phone.choose("OK");
    const Json button = phone.find({{"title", "应用录屏"}, {"visible", true}}).at(0);
    const Json inside{{"point", {5, 5}}};
    const Json at = phone.message(button, "convertPoint:toView:", {inside, nullptr})["point"];
    const auto touch = [&](const char* phase) {
        const Json point{1, at[0], at[1]};
        phone.result({{"do", "touch"}, {"phase", phase}, {"points", Json::array({point})}});
        phone.advance(1);
        return phone.message(phone.panel("audioEngine"), "isRunning");
    };
    EXPECT_EQ(touch("began"), true);
    EXPECT_EQ(touch("cancelled"), false);
}

TEST_F(Dictation, SilenceGivesNoText) {
    phone.choose("OK");
    EXPECT_EQ(dictated(1), nullptr);
    EXPECT_EQ(phone.panel("recognitionRequest"), nullptr);
}

TEST_F(Dictation, WhatFailsLeavesNothingRunning) {
    phone.choose("OK");
    for (const Json& settings :
         {Json{{"authorized", false}}, Json{{"available", false}},
          Json{{"authorized", true}, {"available", true}, {"error", "no"}}}) {
        recognize(settings);
        recognize({{"hears", "听不到"}});
        EXPECT_EQ(dictated(1), nullptr) << settings;
        EXPECT_EQ(phone.message(phone.panel("audioEngine"), "isRunning"), false);
        EXPECT_EQ(phone.panel("recognitionTask"), nullptr);
    }
    recognize({{"error", nullptr}});
    EXPECT_EQ(dictated(3), "听不到");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(Dictation, BeginningTwiceInstallsOneTap) {
    phone.choose("OK");
    recognize({{"hears", "你好"}});
    phone.panel("initiateVoiceRecognition");
    phone.panel("initiateVoiceRecognition");
    phone.advance(3);
    phone.panel("terminateVoiceRecognition");
    EXPECT_EQ(phone.alert()["message"], "你好");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(DictationWithoutAWord, OfWhatItIsForIsNotPrepared) {
    CapturePanel phone("plain", Json::object(), {"--bundle", "com.apple.Preferences"});
    phone.advance(1);
    EXPECT_EQ(phone.alert(), nullptr);
    EXPECT_EQ(phone.panel("audioEngine"), nullptr) << "the system would end the application";
    phone.panel("handleLongGesturePressRecord:", {nullptr});
    phone.panel("initiateVoiceRecognition");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(DictationElsewhere, IsNotPrepared) {
    CapturePanel phone("chat");
    phone.advance(1);
    EXPECT_EQ(phone.alert(), nullptr);
    EXPECT_EQ(phone.panel("audioEngine"), nullptr);
    phone.panel("initiateVoiceRecognition");
    EXPECT_TRUE(phone.swallowed().empty());
}

} // namespace
