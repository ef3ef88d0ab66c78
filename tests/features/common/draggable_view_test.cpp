// Panels that are dragged, pinched, double-tapped and dropped on the trash.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

class DraggableView : public testing::Test {
protected:
    DraggableView() {
        phone.message(phone.window(), "addSubview:", {panel});
        phone.message(panel, "makeDraggableAndZoomable");
    }
    Json added(const std::string& cls, const std::vector<double>& frame, const Json& superview) {
        const Json view = phone.make(cls, frame);
        phone.message(superview, "addSubview:", {view});
        return view;
    }
    Json frame(const Json& view) { return phone.node(view)["frame"]; }
    bool hidden(const Json& view) { return phone.node(view)["hidden"].get<bool>(); }
    /// The horizontal and vertical scale.
    std::vector<double> scale() {
        const Json node = phone.node(panel);
        if (!node.contains("transform")) {
            return {1, 1};
        }
        return {node["transform"][0].get<double>(), node["transform"][3].get<double>()};
    }
    void pinch(double scale) { phone.result({{"do", "pinch"}, {"on", panel}, {"scale", scale}}); }

    tests::Phone phone;
    Json panel = phone.make("UIView", {100, 300, 120, 100});
};

TEST_F(DraggableView, FollowsTheFinger) {
    phone.slide({{150, 350}, {170, 350}, {120, 450}});
    EXPECT_EQ(frame(panel), (Json{70, 400, 120, 100}));
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(DraggableView, PinchingStopsAtItsBounds) {
    pinch(4);
    EXPECT_NEAR(scale()[0], 1.7, 1e-9);
    EXPECT_NEAR(scale()[1], 1.7, 1e-9);
    pinch(1.2);
    EXPECT_NEAR(scale()[0], 1.7, 1e-9);
    pinch(0.05);
    EXPECT_NEAR(scale()[0], 0.3, 1e-9);
}

TEST_F(DraggableView, ADoubleTapZoomsInAndBack) {
    phone.tap(panel, 2);
    EXPECT_EQ(scale(), (std::vector<double>{1.9, 1.9}));
    phone.tap(panel, 2);
    EXPECT_EQ(scale(), (std::vector<double>{1, 1}));
    phone.tap(panel);
    EXPECT_EQ(scale(), (std::vector<double>{1, 1}));
}

TEST_F(DraggableView, ADoubleTapInTextKeepsItsMeaning) {
    const Json label = added("UILabel", {0, 0, 60, 30}, panel);
    phone.message(label, "setUserInteractionEnabled:", {true});
    phone.tap(label, 2);
    EXPECT_EQ(scale(), (std::vector<double>{1, 1}));
    phone.tap(Json{200, 390}, 2);
    EXPECT_EQ(scale(), (std::vector<double>{1.9, 1.9}));
}

TEST_F(DraggableView, TheTrashShowsWhileThePanelIsOverIt) {
    const Json trash = added("TrashButton", {100, 600, 80, 40}, phone.window());
    phone.message(trash, "setTag:", {99});
    const auto drag = [this](const Json& path) {
        phone.result({{"do", "slide"}, {"path", path}, {"stay", true}});
    };
    drag({{150, 350}, {150, 400}});
    EXPECT_TRUE(hidden(trash));
    phone.result({{"do", "touch"}, {"phase", "moved"}, {"points", {{0, 150, 560}}}});
    EXPECT_FALSE(hidden(trash));
    phone.result({{"do", "touch"}, {"phase", "ended"}, {"points", {{0, 150, 560}}}});
    EXPECT_TRUE(hidden(panel));
    EXPECT_FALSE(phone.message(panel, "superview").is_null()) << "only hidden";
}

TEST_F(DraggableView, DroppedElsewhereItHidesTheTrash) {
    const Json trash = added("TrashButton", {100, 600, 80, 40}, phone.window());
    phone.message(trash, "setTag:", {99});
    phone.slide({{150, 350}, {150, 400}});
    EXPECT_TRUE(hidden(trash));
    EXPECT_FALSE(hidden(panel));
}

TEST_F(DraggableView, ATrashButtonTakesTouchesInAFixedSquare) {
    const Json trash = added("TrashButton", {0, 0, 10, 10}, phone.window());
    const auto inside = [&](double x, double y) {
        return phone.message(trash, "pointInside:withEvent:", {{{"point", {x, y}}}, nullptr})
            .get<bool>();
    };
    EXPECT_TRUE(inside(0, 0));
    EXPECT_TRUE(inside(269, 269));
    EXPECT_FALSE(inside(271, 5));
    EXPECT_FALSE(inside(5, -1));
}

TEST_F(DraggableView, TheTrashButtonEndsUpAsTheTag) {
    const Json other = added("UIView", {0, 0, 50, 50}, phone.window());
    const Json trash = added("TrashButton", {100, 600, 80, 40}, phone.window());
    phone.message(other, "makeDraggableAndZoomableWithTrashButton:", {trash});
    EXPECT_EQ(phone.node(other)["recognizers"].size(), 1U);
    phone.advance(0.01);
    const Json tag = phone.node(other)["tag"];
    EXPECT_NE(tag, 98);
    EXPECT_NE(tag, 0);
}

} // namespace
