// The model of phone, as the command line and scripts choose it.
#include "tests/host/host.hpp"
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;
using tests::Phone;

Json insets(double top, double left, double bottom, double right) {
    return {{"insets", {top, left, bottom, right}}};
}

TEST(DeviceModel, IsTheOneOfTheCommandLine) {
    Phone phone{{"--app", "notes", "--device", "iPhone SE"}};
    EXPECT_EQ(
        phone.result({{"do", "device"}}),
        (Json{{"name", "iPhone SE"}, {"size", {375, 667}}, {"scale", 2}, {"front", "homeButton"}}));
    EXPECT_EQ(phone.window()["frame"], (Json{0, 0, 375, 667}));
    EXPECT_EQ(phone.message(phone.window(), "safeAreaInsets"), insets(20, 0, 0, 0));
    EXPECT_EQ(phone.find({{"class", "UINavigationBar"}})[0]["frame"][1], 20);
    EXPECT_EQ(phone.result({{"do", "rotate"}, {"to", "landscapeLeft"}}), "landscapeLeft");
    EXPECT_EQ(phone.message(phone.window(), "safeAreaInsets"), insets(0, 0, 0, 0));
}

TEST(DeviceModel, ASizeHasNoName) {
    Phone phone{{"--app", "plain", "--size", "320x568@2"}};
    const Json device = phone.result({{"do", "device"}});
    EXPECT_EQ(device["name"], nullptr);
    EXPECT_EQ(device["front"], "homeButton");
}

TEST(DeviceModel, IsExchangedWhileTheApplicationRuns) {
    Phone phone{{"--app", "notes"}};
    EXPECT_EQ(phone.result({{"do", "device"}})["name"], "iPhone 12");
    const Json set{{"do", "device"}, {"set", "iPhone 15 Pro Max"}};
    EXPECT_EQ(phone.result(set)["front"], "island");
    EXPECT_EQ(phone.window()["frame"], (Json{0, 0, 430, 932}));
    EXPECT_EQ(phone.message(phone.window(), "safeAreaInsets"), insets(59, 0, 34, 0));
    phone.result({{"do", "rotate"}, {"to", "landscapeLeft"}});
    phone.result({{"do", "device"}, {"set", "iPhone X"}});
    EXPECT_EQ(phone.window()["frame"], (Json{0, 0, 812, 375}));
    EXPECT_EQ(phone.message(phone.window(), "safeAreaInsets"), insets(0, 44, 21, 44));
    EXPECT_NE(phone.error({{"do", "device"}, {"set", "Nokia"}}), "");
}

TEST(DeviceModel, AllAreListed) {
    support::HostProcess list = tests::hostWith({"--list-devices"});
    const std::string names = list.rest();
    EXPECT_EQ(list.wait(), 0);
    EXPECT_NE(names.find("iPhone SE"), std::string::npos);
    EXPECT_NE(names.find("430x932@3"), std::string::npos);
}

} // namespace
