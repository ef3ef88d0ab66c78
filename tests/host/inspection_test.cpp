// What is at a point of the screen, and which of its methods the library has changed.
#include "tests/host/host.hpp"
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using nlohmann::json;

json at(support::HostProcess& host, double x, double y) {
    return host.result({{"do", "at"}, {"point", {x, y}}});
}

bool hooks(const json& node, const char* method) {
    return std::ranges::count(node.at("hooks"), json(method)) == 1;
}

TEST(Inspection, FindsViewsThatTakeNoTouches) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const json label = at(host, 30, 125);
    EXPECT_EQ(label.at("class"), "UILabel");
    EXPECT_EQ(label.at("text"), "Hello, world");
    EXPECT_EQ(label.at("hooks"), json::array());
    EXPECT_EQ(at(host, 30, 500).at("class"), "UIView");
    EXPECT_EQ(at(host, -5, 500), nullptr);
}

TEST(Inspection, PassesWhatIsHiddenAndWhatIsCutOff) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const json label = at(host, 30, 125);
    const json page = host.message(label, "superview");
    host.message(label, "setHidden:", {true});
    EXPECT_EQ(at(host, 30, 125).at("object"), page.at("object"));
    host.message(label, "setHidden:", {false});
    host.message(label, "setAlpha:", {0});
    EXPECT_EQ(at(host, 30, 125).at("object"), page.at("object"));
    host.message(label, "setAlpha:", {1});
    host.message(page, "setFrame:", {{{"rect", {0, 0, 390, 100}}}});
    EXPECT_EQ(at(host, 30, 125).at("object"), label.at("object"));
    host.message(page, "setClipsToBounds:", {true});
    EXPECT_NE(at(host, 30, 125).at("object"), label.at("object"));
}

TEST(Inspection, TheFrontOneOfTwoIsSeen) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const json label = at(host, 30, 125);
    const json page = host.message(label, "superview");
    const json cover = host.message({{"class", "UIView"}}, "new");
    host.message(cover, "setFrame:", {{{"rect", {0, 100, 100, 100}}}});
    host.message(page, "addSubview:", {cover});
    EXPECT_EQ(at(host, 30, 125).at("object"), cover.at("object"));
    host.message(page, "sendSubviewToBack:", {cover});
    EXPECT_EQ(at(host, 30, 125).at("object"), label.at("object"));
}

TEST(Inspection, AViewEndsBeforeItsRightAndItsLowerEdge) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const json window = host.message({{"class", "UIWindow"}}, "alloc");
    host.message(window, "initWithFrame:", {{{"rect", {100, 300, 50, 40}}}});
    host.message(window, "setHidden:", {false});
    struct Case {
        double x;
        double y;
        bool isInside;
    };
    for (const auto& [x, y, isInside] :
         {Case{100, 300, true}, Case{149.5, 339.5, true}, Case{150, 320, false},
          Case{120, 340, false}, Case{99.5, 320, false}, Case{120, 299.5, false}}) {
        EXPECT_EQ(at(host, x, y).at("class") == "UIWindow", isInside) << x << ", " << y;
    }
}

TEST(Inspection, TellsTheMethodsThatTheLibraryReplaced) {
    tests::Phone phone{{"--app", "plain"}};
    const json label = at(phone, 30, 125);
    EXPECT_TRUE(hooks(label, "UILabel setText:")) << label;
    EXPECT_FALSE(hooks(label, "UILabel hook_setText:")) << "no label had it before";
    EXPECT_FALSE(hooks(label, "UILabel text"));
    const json page = at(phone, 30, 500);
    EXPECT_FALSE(hooks(page, "UILabel setText:")) << page;
}

TEST(Inspection, RefusesWhatIsNoPoint) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    for (const json& point : {json(), json("middle"), json({1}), json({1, "2"})}) {
        EXPECT_NE(host.error({{"do", "at"}, {"point", point}}), "") << point;
    }
    EXPECT_NE(host.error({{"do", "at"}}), "");
}

} // namespace
