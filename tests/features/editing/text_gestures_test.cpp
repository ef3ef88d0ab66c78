// Gestures on labels and text views of some applications.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;
using tests::Phone;

/// A phone with an application of that identifier, and a label of that class in its window.
struct Scene {
    Scene(const std::string& bundle, const std::string& preference, const std::string& cls)
        : phone({"--app", cls == "UITableViewLabel" ? "settings" : "notes", "--bundle", bundle}) {
        phone.set({{preference, true}});
        label = phone.make(cls, {50, 200, 200, 60});
        phone.message(label, "setText:", {"hello"});
        phone.message(phone.window(), "addSubview:", {label});
    }
    bool translates() {
        phone.advance(1);
        const Json alert = phone.alert();
        if (alert.is_null()) {
            return false;
        }
        EXPECT_EQ(alert["title"], "翻译错误") << "there is no account";
        phone.choose("关闭窗口");
        return true;
    }
    void pressWith(int fingers, double seconds) {
        phone.result({{"do", "press"}, {"on", label}, {"seconds", seconds}, {"touches", fingers}});
    }

    Phone phone;
    Json label;
};

constexpr const char* discord = "com.hammerandchisel.discord";
constexpr const char* settings = "com.apple.Preferences";

TEST(TextGestures, ATapTranslatesInTheChat) {
    Scene scene(discord, "Discord翻译", "YYLabel");
    scene.phone.set({{"百度id", "desktop"}, {"百度key", "desktop-key"}});
    scene.phone.tap(scene.label);
    scene.phone.result({{"do", "wait"}, {"for", {{"text", "翻译结果"}}}, {"seconds", 10}});
    EXPECT_EQ(scene.phone.alert()["message"], "你好");
}

TEST(TextGestures, TwoFingersTranslateInTheVideos) {
    for (const char* bundle : {"com.zhiliaoapp.musically", "com.ss.iphone.ugc.Aweme"}) {
        Scene scene(bundle, "TikTok翻译", "YYLabel");
        scene.pressWith(1, 0.5);
        EXPECT_FALSE(scene.translates());
        scene.pressWith(2, 0.1);
        EXPECT_FALSE(scene.translates());
        scene.pressWith(2, 0.3);
        EXPECT_TRUE(scene.translates()) << bundle;
    }
}

TEST(TextGestures, BelongToTheirApplications) {
    for (const auto& [bundle, preference, cls] :
         {std::tuple{"dev.other", "Discord翻译", "YYLabel"},
          std::tuple{discord, "TikTok翻译", "YYLabel"},
          std::tuple{"dev.other", "系统设置翻译", "UITableViewLabel"},
          std::tuple{settings, "Discord翻译", "UITableViewLabel"}}) {
        Scene scene(bundle, preference, cls);
        scene.phone.tap(scene.label);
        scene.pressWith(2, 0.5);
        EXPECT_FALSE(scene.translates()) << bundle << preference << cls;
    }
}

TEST(TextGestures, SettingsAskTheSwitchAtEachTap) {
    Scene scene(settings, "系统设置翻译", "UITableViewLabel");
    scene.phone.set({{"系统设置翻译", false}});
    scene.phone.tap(scene.label);
    EXPECT_FALSE(scene.translates());
    scene.phone.set({{"系统设置翻译", true}});
    scene.phone.tap(scene.label);
    EXPECT_TRUE(scene.translates());
}

TEST(TextGestures, ALabelMayGoBeforeItsTapIsDealtWith) {
    Scene scene(discord, "Discord翻译", "YYLabel");
    scene.phone.result({{"do", "tap"}, {"on", scene.label}});
    scene.phone.message(scene.label, "removeFromSuperview");
    EXPECT_TRUE(scene.translates());
    EXPECT_TRUE(scene.phone.swallowed().empty());
}

TEST(TextGestures, TwoFingersShowTheTextOfATextView) {
    Scene scene("dev.other", "崩溃日志过滤", "UITextView");
    scene.phone.result({{"do", "press"}, {"on", scene.label}, {"seconds", 0.2}, {"touches", 2}});
    EXPECT_EQ(scene.phone.find({{"class", "MovableAlertView"}}).size(), 1U);
    const Json dialog = scene.phone.find({{"class", "MovableAlertView"}}).at(0);
    EXPECT_EQ(dialog["rect"], (Json{36, 149.5, 318, 545}));
    EXPECT_FALSE(scene.phone.find({{"text", "🔝内容过滤QF"}}).empty());
    EXPECT_FALSE(scene.phone.find({{"text", "hello"}, {"class", "UITextView"}}).empty());
}

TEST(TextGestures, TheTextIsInTheMiddleOfAScrolledScreen) {
    constexpr long fullScreen = 0;
    Scene scene("dev.other", "崩溃日志过滤", "UITextView");
    const Json screen = scene.phone.make("UIScrollView", {0, 0, 390, 844});
    scene.phone.message(screen, "setContentSize:", {{{"size", {390, 3000}}}});
    const Json controller = scene.phone.message({{"class", "UIViewController"}}, "new");
    scene.phone.message(controller, "setView:", {screen});
    scene.phone.message(controller, "setModalPresentationStyle:", {fullScreen});
    scene.phone.message(scene.phone.message(scene.phone.window(), "rootViewController"),
                        "presentViewController:animated:completion:", {controller, false, nullptr});
    scene.phone.message(screen, "setContentOffset:", {{{"point", {0, 500}}}});
    scene.phone.message(scene.label, "showAlertWithTitle:message:", {"title", "text"});
    const Json dialog = scene.phone.find({{"class", "MovableAlertView"}}).at(0);
    EXPECT_EQ(dialog["rect"], (Json{36, 149.5, 318, 545}));
}

TEST(TextGestures, AreNotAddedWhileTheSwitchIsOff) {
    Scene scene("dev.other", "崩溃日志过滤", "UITextView");
    scene.phone.set({{"崩溃日志过滤", false}});
    const Json later = scene.phone.make("UITextView", {50, 300, 200, 60});
    scene.phone.message(scene.phone.window(), "addSubview:", {later});
    scene.phone.result({{"do", "press"}, {"on", later}, {"seconds", 0.3}, {"touches", 2}});
    EXPECT_TRUE(scene.phone.find({{"class", "MovableAlertView"}}).empty());
}

} // namespace
