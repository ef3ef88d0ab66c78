// Fingers on the screen, as a script moves them.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

class TouchCommands : public testing::Test {
protected:
    TouchCommands() {
        view = made("UIView");
        marker = made("UIView");
        host.message(view, "setFrame:", {{{"rect", {100, 200, 100, 100}}}});
        host.message(host.result({{"do", "tree"}}).at(0), "addSubview:", {view});
        host.message(view, "addSubview:", {marker});
    }
    json made(const char* className) { return host.message({{"class", className}}, "new"); }
    /// A recognizer on the view, whose action takes the marker out of the window.
    json recognizer(const char* className) {
        const json allocated = host.message({{"class", className}}, "alloc");
        json one = host.message(
            allocated, "initWithTarget:action:", {marker, {{"selector", "removeFromSuperview"}}});
        host.message(view, "addGestureRecognizer:", {one});
        return one;
    }
    /// Whether the action has been sent since the last question.
    bool acted() {
        const bool gone = host.message(marker, "superview").is_null();
        host.message(view, "addSubview:", {marker});
        return gone;
    }
    void act(const json& request) { EXPECT_EQ(host.result(request), nullptr) << request; }

    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    json view;
    json marker;
};

TEST_F(TouchCommands, ATapReachesTheViewByItsCentreOrAPoint) {
    recognizer("UITapGestureRecognizer");
    act({{"do", "tap"}, {"on", view}});
    EXPECT_TRUE(acted());
    act({{"do", "tap"}, {"at", {101, 201}}});
    EXPECT_TRUE(acted());
    act({{"do", "tap"}, {"at", {99, 201}}});
    EXPECT_FALSE(acted());
    act({{"do", "tap"}, {"on", view}, {"touches", 2}});
    EXPECT_FALSE(acted());
}

TEST_F(TouchCommands, TapsAndTouchesAreCounted) {
    const json tapping = recognizer("UITapGestureRecognizer");
    host.message(tapping, "setNumberOfTapsRequired:", {3});
    host.message(tapping, "setNumberOfTouchesRequired:", {2});
    act({{"do", "tap"}, {"on", view}, {"taps", 2}, {"touches", 2}});
    act({{"do", "advance"}, {"seconds", 1}});
    EXPECT_FALSE(acted());
    act({{"do", "tap"}, {"on", view}, {"taps", 3}, {"touches", 2}});
    EXPECT_TRUE(acted());
    EXPECT_EQ(host.result({{"do", "tree"}, {"of", view}}).at("recognizers"),
              json::array({{{"class", "UITapGestureRecognizer"},
                            {"action", "removeFromSuperview"},
                            {"taps", 3},
                            {"touches", 2}}}));
}

TEST_F(TouchCommands, AButtonSendsItsAction) {
    const json button = host.message({{"class", "UIButton"}}, "buttonWithType:", {1});
    host.message(button, "setTitle:forState:", {"Go", 0});
    host.message(button, "setFrame:", {{{"rect", {0, 0, 50, 50}}}});
    host.message(button, "addTarget:action:forControlEvents:",
                 {marker, {{"selector", "removeFromSuperview"}}, 64});
    host.message(view, "addSubview:", {button});
    const json found = host.result({{"do", "find"}, {"where", {{"title", "Go"}}}});
    ASSERT_EQ(found.size(), 1U);
    act({{"do", "tap"}, {"on", found.at(0)}});
    EXPECT_TRUE(acted());
}

TEST_F(TouchCommands, APressTakesItsTime) {
    const json press = recognizer("UILongPressGestureRecognizer");
    host.message(press, "setMinimumPressDuration:", {1.5});
    act({{"do", "press"}, {"on", view}, {"seconds", 1.4}});
    EXPECT_FALSE(acted());
    act({{"do", "press"}, {"on", view}, {"seconds", 1.5}});
    EXPECT_TRUE(acted());
}

TEST_F(TouchCommands, ASlidePansAndMayStay) {
    const json pan = recognizer("UIPanGestureRecognizer");
    const json path{{110, 210}, {150, 210}, {150, 400}};
    act({{"do", "slide"}, {"path", path}, {"stay", true}});
    EXPECT_TRUE(acted());
    EXPECT_EQ(host.message(pan, "translationInView:", {view}), (json{{"point", {40, 190}}}));
    EXPECT_EQ(host.message(pan, "state"), 2);
    act({{"do", "touch"}, {"phase", "moved"}, {"points", {{0, 150, 300}}}});
    EXPECT_EQ(host.message(pan, "translationInView:", {view}), (json{{"point", {40, 90}}}));
    act({{"do", "touch"}, {"phase", "ended"}, {"points", {{0, 150, 300}}}});
    EXPECT_EQ(host.message(pan, "state"), 0);
}

TEST_F(TouchCommands, AFingerThatLeavesElsewhereHasNotMovedThere) {
    constexpr int drags = 4 | 8; // inside and outside of the control
    const json button = made("UIButton");
    host.message(button, "setFrame:", {{{"rect", {0, 0, 100, 100}}}});
    host.message(button, "addTarget:action:forControlEvents:",
                 {marker, {{"selector", "removeFromSuperview"}}, drags});
    host.message(view, "addSubview:", {button});
    const auto touch = [this](const char* phase, int x) {
        act({{"do", "touch"}, {"phase", phase}, {"points", {{0, x, 250}}}});
    };
    for (const char* leaving : {"ended", "cancelled"}) {
        touch("began", 110);
        touch("moved", 115);
        EXPECT_TRUE(acted());
        touch(leaving, 190);
        EXPECT_FALSE(acted()) << leaving;
    }
}

TEST_F(TouchCommands, AHeldSlideFollowsALongPress) {
    const json press = recognizer("UILongPressGestureRecognizer");
    const json path{{110, 210}, {150, 210}};
    act({{"do", "slide"}, {"path", path}});
    EXPECT_FALSE(acted());
    act({{"do", "slide"}, {"path", path}, {"hold", 0.6}, {"stay", true}});
    EXPECT_EQ(host.message(press, "locationInView:", {view}), (json{{"point", {50, 10}}}));
}

TEST_F(TouchCommands, APinchScales) {
    const json pinch = recognizer("UIPinchGestureRecognizer");
    for (const double scale : {0.25, 3.0}) {
        act({{"do", "pinch"}, {"on", view}, {"scale", scale}, {"steps", 4}});
        EXPECT_TRUE(acted()) << scale;
    }
    EXPECT_EQ(host.message(pinch, "state"), 0);
}

TEST_F(TouchCommands, BadArgumentsAreRefusedAndTheHostGoesOn) {
    const json free = made("UIView");
    const json path{{1, 1}};
    for (const json& request : std::vector<json>{
             {{"do", "tap"}},
             {{"do", "tap"}, {"at", {1}}},
             {{"do", "tap"}, {"at", {1, 1e300}}},
             {{"do", "tap"}, {"on", free}},
             {{"do", "tap"}, {"on", "text"}},
             {{"do", "tap"}, {"on", view}, {"touches", 11}},
             {{"do", "tap"}, {"on", view}, {"taps", 0}},
             {{"do", "press"}, {"on", view}, {"seconds", -1}},
             {{"do", "slide"}, {"path", json::array()}},
             {{"do", "slide"}, {"path", path}, {"stay", 1}},
             {{"do", "pinch"}, {"on", view}, {"scale", 0}},
             {{"do", "pinch"}, {"on", view}, {"scale", 2}, {"steps", 1.5}},
             {{"do", "touch"}, {"phase", "hovered"}, {"points", {{0, 1, 1}}}},
             {{"do", "touch"}, {"phase", "moved"}, {"points", {{0, 1, 1}}}},
             {{"do", "touch"}, {"phase", "began"}, {"points", {{0, 1, 1}, {0, 2, 2}}}},
             {{"do", "touch"}, {"phase", "began"}, {"points", {{0.5, 1, 1}}}},
         }) {
        EXPECT_NE(host.error(request), "") << request;
    }
    act({{"do", "tap"}, {"on", view}});
}

TEST_F(TouchCommands, TheWheelScrollsWhatIsUnderIt) {
    const json scrolled = made("UIScrollView");
    host.message(scrolled, "setFrame:", {{{"rect", {100, 400, 100, 100}}}});
    host.message(scrolled, "setContentSize:", {{{"size", {100, 150}}}});
    host.message(host.result({{"do", "tree"}}).at(0), "addSubview:", {scrolled});
    const auto turn = [this](double x, double y, double by) {
        return host.result({{"do", "wheel"}, {"at", {x, y}}, {"by", {0, by}}});
    };
    EXPECT_EQ(turn(150, 450, 30), true);
    EXPECT_EQ(host.message(scrolled, "contentOffset"), (json{{"point", {0, 30}}}));
    EXPECT_EQ(turn(450, 150, 30), false) << "nothing scrolls there";
    EXPECT_EQ(turn(150, 450, 30), true);
    EXPECT_EQ(host.message(scrolled, "contentOffset"), (json{{"point", {0, 50}}}));
    EXPECT_EQ(turn(150, 450, 30), false) << "it is at its end";
    EXPECT_NE(host.error({{"do", "wheel"}, {"at", {150, 450}}}), "");
    EXPECT_NE(host.error({{"do", "wheel"}, {"by", {0, 1}}, {"at", "here"}}), "");
}

TEST(SwipedRows, AreThoseOfTables) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const nlohmann::json label =
        host.result({{"do", "find"}, {"where", {{"class", "UILabel"}}}}).at(0);
    EXPECT_NE(host.error({{"do", "swipe"}, {"on", label}}).find("row"), std::string::npos);
    EXPECT_NE(host.error({{"do", "swipe"}, {"at", {5, 5}}}).find("row"), std::string::npos);
    EXPECT_NE(host.error({{"do", "swipe"}, {"at", "here"}}).find("point"), std::string::npos);
    EXPECT_FALSE(host.error({{"do", "swipe"}}).empty());
}

} // namespace
