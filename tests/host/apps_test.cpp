// The host applications' screens.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using nlohmann::json;
using support::HostProcess;
using tests::automatedHost;

std::size_t count(HostProcess& host, const json& where) {
    return host.result({{"do", "find"}, {"where", where}}).size();
}

TEST(Apps, HaveTheClassesThatTellThemApart) {
    HostProcess notes = automatedHost({"--app", "notes"});
    EXPECT_GT(count(notes, {{"class", "YYLabel"}}), 1U);
    EXPECT_GT(count(notes, {{"class", "UIStackView"}}), 1U);
    EXPECT_EQ(count(notes, {{"class", "UIScrollView"}}), 1U);
    HostProcess settings = automatedHost({"--app", "settings"});
    EXPECT_GT(count(settings, {{"class", "UITableViewLabel"}}), 10U);
    const json window = settings.result({{"do", "tree"}}).at(0);
    EXPECT_EQ(settings.message(window, "rootViewController").at("class"), "PSSplitViewController");
    HostProcess plain = automatedHost({"--app", "plain"});
    EXPECT_EQ(plain.error({{"do", "send"}, {"to", {{"class", "YYLabel"}}}, {"selector", "class"}}),
              "no such class: YYLabel");
    EXPECT_GE(count(plain, {{"class", "UILabel"}, {"visible", true}}), 2U);
}

TEST(Apps, TheChatPlaysTheApplicationThatItsBundleNames) {
    for (const auto& [bundle, title] :
         std::vector<std::array<const char*, 2>>{{"com.hammerandchisel.discord", "# 周末 weekend"},
                                                 {"com.zhiliaoapp.musically", "TikTok"},
                                                 {"com.ss.iphone.ugc.Aweme", "抖音"}}) {
        HostProcess host = automatedHost({"--app", "chat", "--bundle", bundle});
        EXPECT_EQ(count(host, {{"class", "UILabel"}, {"text", title}, {"visible", true}}), 1U)
            << bundle;
        EXPECT_EQ(count(host, {{"class", "YYLabel"}, {"text", "hello"}, {"visible", true}}), 1U)
            << bundle;
        EXPECT_GE(count(host, {{"class", "YYLabel"}, {"visible", true}}), 8U) << bundle;
    }
}

TEST(Apps, AnApplicationsOwnLabelHasItsOwnText) {
    HostProcess host = automatedHost({"--app", "notes"});
    const json label = host.result({{"do", "find"}, {"where", {{"class", "YYLabel"}}}}).at(0);
    EXPECT_EQ(host.message(label, "subviews"), json::array());
    host.message(label, "setText:", {"改过"});
    EXPECT_EQ(count(host, {{"class", "YYLabel"}, {"text", "改过"}}), 1U);
    EXPECT_EQ(count(host, {{"class", "UILabel"}, {"text", "改过"}}), 0U);
}

class Content : public testing::Test {
protected:
    std::vector<std::string> options(const std::string& text) {
        return {"--automation", "--no-library", "--content", folder.write("content.json", text)};
    }

    support::TemporaryFolder folder;
};

TEST_F(Content, ReplacesTheTextsOfTheNotes) {
    HostProcess host = tests::hostWith(options(
        R"({"title":"题目","cards":[{"title":"卡片","lines":["第一行","line two"]}],
            "list":["row"],"labels":[{"text":"placed","frame":[5,6,70,20],"size":12}]})"));
    for (const char* text : {"卡片", "第一行", "line two"}) {
        EXPECT_EQ(count(host, {{"class", "UILabel"}, {"text", text}}), 1U) << text;
    }
    EXPECT_EQ(count(host, {{"class", "YYLabel"}}), 1U);
    const json placed = host.result({{"do", "find"}, {"where", {{"text", "placed"}}}}).at(0);
    EXPECT_EQ(placed.at("frame"), json({5, 6, 70, 20}));
    EXPECT_EQ(placed.at("font").at("size"), 12);
}

TEST_F(Content, MayBeEmpty) {
    HostProcess host = tests::hostWith(options("{}"));
    EXPECT_EQ(count(host, {{"class", "YYLabel"}}), 0U);
}

TEST_F(Content, ThatIsMalformedIsToldWithStatusTwo) {
    for (const char* text : {"", "[]", "{", R"({"titel":"x"})", R"({"title":7})", R"({"cards":{}})",
                             R"({"cards":[7]})", R"({"list":[7]})", R"({"labels":[{"text":"x"}]})",
                             R"({"labels":[{"text":"x","frame":[1,2,3]}]})",
                             R"({"labels":[{"text":"x","frame":[1,2,3,"4"]}]})",
                             R"({"labels":[{"text":"x","frame":[1,2,3,4],"size":"big"}]})"}) {
        HostProcess host = tests::hostWith(options(text));
        EXPECT_EQ(host.wait(), 2) << text;
        EXPECT_NE(host.errors().find("content.json"), std::string::npos) << host.errors();
    }
}

} // namespace
