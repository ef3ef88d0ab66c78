// The phone's appearance, as scripts change it and see it.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;
using tests::Phone;

class Appearance : public testing::Test {
protected:
    Json appearance(const Json& set) { return phone_.result({{"do", "appearance"}, {"set", set}}); }

    Phone phone_;
};

TEST_F(Appearance, IsLightUntilItIsSet) {
    EXPECT_EQ(phone_.result({{"do", "appearance"}}), "light");
    EXPECT_EQ(appearance("dark"), "dark");
    EXPECT_EQ(phone_.result({{"do", "appearance"}}), "dark");
    EXPECT_EQ(appearance("light"), "light");
    EXPECT_NE(phone_.error({{"do", "appearance"}, {"set", "grey"}}), "");
}

TEST_F(Appearance, ReachesWhatTheApplicationShows) {
    appearance("dark");
    const Json label = phone_.find({{"text", "Hello, world"}})[0];
    EXPECT_EQ(label["textColor"], "#ffffffff");
    EXPECT_EQ(label["style"], "dark");
    appearance("light");
    EXPECT_EQ(phone_.node(label)["textColor"], "#000000ff");
}

TEST(TextSize, MakesTheCardsOfTheNotesHigher) {
    Phone phone{{"--app", "notes"}};
    const auto height = [&phone] {
        const Json stack = phone.find({{"class", "UIStackView"}})[0];
        return stack["frame"][3].get<double>();
    };
    const double usual = height();
    phone.result({{"do", "textSize"}, {"set", "accessibilityMedium"}});
    EXPECT_GT(height(), usual * 1.4);
    phone.result({{"do", "textSize"}, {"set", "large"}});
    EXPECT_EQ(height(), usual);
}

TEST(TextSize, ReachesLabelsThatFollowIt) {
    Phone phone{{"--app", "settings"}};
    const auto size = [&phone] {
        return phone.find({{"text", "蓝牙"}})[0]["font"]["size"].get<double>();
    };
    EXPECT_EQ(phone.result({{"do", "textSize"}}), "large");
    EXPECT_EQ(size(), 17);
    EXPECT_EQ(phone.result({{"do", "textSize"}, {"set", "extraExtraLarge"}}), "extraExtraLarge");
    EXPECT_EQ(size(), 21);
    EXPECT_NE(phone.error({{"do", "textSize"}, {"set", "unspecified"}}), "");
}

} // namespace
