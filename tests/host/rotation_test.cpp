// Turning the phone, as scripts do it and see it.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

namespace {

using tests::Json;
using tests::Phone;

class Rotation : public testing::Test {
protected:
    Json rotate(const Json& to) { return phone_.result({{"do", "rotate"}, {"to", to}}); }
    Json scene() {
        return phone_.message(phone_.message(phone_.window(), "windowScene"),
                              "interfaceOrientation");
    }

    Phone phone_{{"--app", "notes"}};
};

TEST_F(Rotation, TurnsTheScreenTheWindowAndTheSafeArea) {
    EXPECT_EQ(phone_.result({{"do", "rotate"}}), "portrait");
    EXPECT_EQ(phone_.message(phone_.window(), "safeAreaInsets"),
              (Json{{"insets", {47, 0, 34, 0}}}));
    EXPECT_EQ(rotate("landscapeLeft"), "landscapeLeft");
    EXPECT_EQ(phone_.window()["frame"], (Json{0, 0, 844, 390}));
    EXPECT_EQ(phone_.window()["children"][0]["frame"], (Json{0, 0, 844, 390}));
    EXPECT_EQ(phone_.message(phone_.window(), "safeAreaInsets"),
              (Json{{"insets", {0, 47, 21, 47}}}));
    EXPECT_EQ(scene(), 4);
    EXPECT_EQ(rotate("landscapeRight"), "landscapeRight");
    EXPECT_EQ(scene(), 3);
    EXPECT_EQ(rotate("portraitUpsideDown"), "landscapeRight") << "it has a notch";
    EXPECT_EQ(rotate("portrait"), "portrait");
    EXPECT_EQ(phone_.window()["frame"], (Json{0, 0, 390, 844}));
    EXPECT_NE(phone_.error({{"do", "rotate"}, {"to", "up"}}), "");
}

TEST_F(Rotation, TheScreenshotIsAsThePhoneIsHeld) {
    rotate("landscapeLeft");
    const std::string file = testing::TempDir() + "turned.png";
    phone_.result({{"do", "screenshot"}, {"file", file}});
    std::array<unsigned char, 24> head{};
    std::ifstream(file, std::ios::binary).read(reinterpret_cast<char*>(head.data()), head.size());
    const auto number = [&](std::size_t at) { return head[at + 2] * 256 + head[at + 3]; };
    EXPECT_EQ(number(16), 844 * 3);
    EXPECT_EQ(number(20), 390 * 3);
}

TEST_F(Rotation, AlertsStandInTheMiddleAndTheKeyboardIsAsWideAsTheScreen) {
    const Json alert = phone_.message(
        {{"class", "UIAlertController"}},
        "alertControllerWithTitle:message:preferredStyle:", {"Turned", "and seen", 1});
    const Json root = phone_.message(phone_.window(), "rootViewController");
    phone_.message(root, "presentViewController:animated:completion:", {alert, false, nullptr});
    rotate("landscapeLeft");
    const Json frame = phone_.node(phone_.message(alert, "view"))["frame"];
    EXPECT_NEAR(frame[0].get<double>() + frame[2].get<double>() / 2, 422, 1);
    EXPECT_NEAR(frame[1].get<double>() + frame[3].get<double>() / 2, 195, 1);
}

TEST_F(Rotation, AnOpenShareSheetIsLaidOutAnew) {
    const Json sheet = phone_.message(
        phone_.message({{"class", "UIActivityViewController"}}, "alloc"),
        "initWithActivityItems:applicationActivities:", {Json::array({"turned"}), nullptr});
    const Json root = phone_.message(phone_.window(), "rootViewController");
    phone_.message(root, "presentViewController:animated:completion:", {sheet, false, nullptr});
    const auto onScreen = [&](const char* text) {
        const Json view = phone_.find({{"text", text}})[0];
        return phone_.message(
            view, "convertRect:toView:", {phone_.message(view, "bounds"), nullptr})["rect"];
    };
    const auto end = [](const Json& rect) { return rect[0].get<double>() + rect[2].get<double>(); };
    EXPECT_EQ(end(onScreen("turned")), 390 - 16);
    rotate("landscapeLeft");
    EXPECT_EQ(end(onScreen("turned")), 844 - 47 - 16) << "clear of the notch";
    EXPECT_EQ(end(onScreen("关闭")), 844 - 47 - 16);
    rotate("portrait");
    EXPECT_EQ(end(onScreen("turned")), 390 - 16);
}

TEST_F(Rotation, AWindowShownLaterFillsTheScreenIfItDidBefore) {
    const Json full = phone_.make("UIWindow", {0, 0, 390, 844});
    const Json part = phone_.make("UIWindow", {10, 10, 200, 100});
    rotate("landscapeLeft");
    for (const Json& window : {full, part}) {
        phone_.message(window, "setHidden:", {false});
    }
    EXPECT_EQ(phone_.node(full)["frame"], (Json{0, 0, 844, 390}));
    EXPECT_EQ(phone_.node(part)["frame"], (Json{10, 10, 200, 100}));
}

} // namespace
