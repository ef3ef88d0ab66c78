// The tree of views as a script sees it.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using support::HostProcess;

class Views : public testing::Test {
protected:
    /// A view of that class in the first window.
    json added(const char* className, const json& frame) {
        const json view = host.message({{"class", className}}, "new");
        host.message(view, "setFrame:", {{{"rect", frame}}});
        host.message(window(), "addSubview:", {view});
        return view;
    }
    json window() { return host.result({{"do", "tree"}}).at(0); }
    json node(const json& view) { return host.result({{"do", "tree"}, {"of", view}}); }
    std::size_t count(const json& where) {
        return host.result({{"do", "find"}, {"where", where}}).size();
    }

    HostProcess host = tests::automatedHost({"--app", "plain"});
};

TEST_F(Views, ANodeTellsWhatTheViewShows) {
    const json label = added("UILabel", {10, 20, 100, 30});
    host.message(label, "setText:", {"你好"});
    host.message(label, "setTag:", {42});
    host.message(label, "setAccessibilityLabel:", {"greeting"});
    host.message(label, "setTextColor:", {host.message({{"class", "UIColor"}}, "redColor")});
    const json seen = node(label);
    EXPECT_EQ(seen.at("object"), label.at("object"));
    EXPECT_EQ(seen.at("class"), "UILabel");
    EXPECT_EQ(seen.at("frame"), json({10, 20, 100, 30}));
    EXPECT_EQ(seen.at("rect"), json({10, 20, 100, 30}));
    EXPECT_EQ(seen.at("alpha"), 1);
    EXPECT_EQ(seen.at("hidden"), false);
    EXPECT_EQ(seen.at("tag"), 42);
    EXPECT_EQ(seen.at("text"), "你好");
    EXPECT_EQ(seen.at("label"), "greeting");
    EXPECT_EQ(seen.at("textColor"), "#ff0000ff");
    EXPECT_EQ(seen.at("backgroundColor"), nullptr);
    EXPECT_EQ(seen.at("font").at("size"), 17);
    EXPECT_EQ(seen.at("enabled"), true);
    EXPECT_EQ(seen.at("children"), json::array());
    for (const char* absent : {"title", "placeholder", "transform"}) {
        EXPECT_FALSE(seen.contains(absent)) << absent;
    }
}

TEST_F(Views, APlainViewHasNoText) {
    const json seen = node(added("UIView", {0, 0, 1, 1}));
    for (const char* absent : {"text", "textColor", "font", "enabled", "selected"}) {
        EXPECT_FALSE(seen.contains(absent)) << absent;
    }
}

TEST_F(Views, TheRectIsInTheWindow) {
    const json outer = added("UIView", {100, 200, 50, 50});
    const json inner = host.message({{"class", "UIView"}}, "new");
    host.message(inner, "setFrame:", {{{"rect", {10, 10, 20, 20}}}});
    host.message(outer, "addSubview:", {inner});
    EXPECT_EQ(node(inner).at("rect"), json({110, 210, 20, 20}));
    host.message(outer, "setTransform:", {{{"transform", {2, 0, 0, 2, 0, 0}}}});
    EXPECT_EQ(node(inner).at("rect"), json({95, 195, 40, 40}));
    EXPECT_EQ(node(outer).at("transform"), json({2, 0, 0, 2, 0, 0}));
    EXPECT_EQ(node(outer).at("children").at(0).at("object"), inner.at("object"));
}

TEST_F(Views, ConditionsMustAllHold) {
    const json label = added("UILabel", {10, 300, 100, 30});
    host.message(label, "setText:", {"unique"});
    host.message(label, "setTag:", {77});
    EXPECT_EQ(count({{"text", "unique"}}), 1U);
    EXPECT_EQ(count({{"text", "unique"}, {"tag", 77}, {"class", "UIView"}, {"visible", true}}), 1U);
    EXPECT_EQ(count({{"text", "unique"}, {"tag", 78}}), 0U);
    EXPECT_EQ(count({{"text", "unique"}, {"class", "UIWindow"}}), 0U);
    EXPECT_EQ(count({{"class", "NoSuchClass"}}), 0U);
    EXPECT_FALSE(
        host.result({{"do", "find"}, {"where", {{"tag", 77}}}}).at(0).contains("children"));
}

TEST_F(Views, AViewIsVisibleWhereSomethingOfItCanBeSeen) {
    const json visible{{"tag", 5}, {"visible", true}};
    const json view = added("UIView", {10, 10, 10, 10});
    host.message(view, "setTag:", {5});
    EXPECT_EQ(count(visible), 1U);
    host.message(view, "setAlpha:", {0});
    EXPECT_EQ(count(visible), 0U);
    host.message(view, "setAlpha:", {1});
    for (const json& frame : {json{10, 10, 0, 10}, json{-20, 10, 10, 10}, json{390, 10, 10, 10}}) {
        host.message(view, "setFrame:", {{{"rect", frame}}});
        EXPECT_EQ(count(visible), 0U) << frame;
    }
    host.message(view, "setFrame:", {{{"rect", {385, 840, 10, 10}}}});
    EXPECT_EQ(count(visible), 1U);
    host.message(window(), "setHidden:", {true});
    EXPECT_EQ(count({{"tag", 5}, {"visible", false}}), count({{"tag", 5}}));
}

TEST_F(Views, AScreenshotIsAPngOfTheScreensPixels) {
    const support::TemporaryFolder folder;
    const auto file = folder.path() / "screen.png";
    host.result({{"do", "screenshot"}, {"file", file.string()}});
    const std::string png = support::readFile(file);
    ASSERT_GT(png.size(), 24U);
    EXPECT_EQ(png.substr(1, 3), "PNG");
    EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x04\x92\0\0\x09\xe4", 8)); // 1170 x 2532
}

} // namespace
