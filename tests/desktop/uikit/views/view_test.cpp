// Views: geometry, the tree, coordinates, autoresizing.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/view_controller.hpp"

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using namespace ns::literals;

class ViewTest : public tests::UIKitTest {
protected:
    static void expectRect(CGRect found, CGRect wanted) {
        EXPECT_NEAR(found.origin.x, wanted.origin.x, 1e-9);
        EXPECT_NEAR(found.origin.y, wanted.origin.y, 1e-9);
        EXPECT_NEAR(found.size.width, wanted.size.width, 1e-9);
        EXPECT_NEAR(found.size.height, wanted.size.height, 1e-9);
    }
};

TEST_F(ViewTest, FrameBoundsCenterAndTransformAgree) {
    const auto view = ui::View::withFrame({{10, 20}, {100, 50}});
    EXPECT_EQ(view.center(), (CGPoint{60, 45}));
    EXPECT_EQ(view.bounds(), (CGRect{{0, 0}, {100, 50}}));

    view.setTransform({2, 0, 0, 2, 0, 0});
    expectRect(view.frame(), {{-40, -5}, {200, 100}});
    view.setFrame({{0, 0}, {400, 200}});
    expectRect(view.bounds(), {{0, 0}, {200, 100}});
    view.setTransform({0, 1, -1, 0, 0, 0}); // a quarter turn
    expectRect(view.frame(), {{150, 0}, {100, 200}});

    view.setTransform(CGAffineTransform());
    view.setFrame({{30, 30}, {-10, -20}});
    EXPECT_EQ(view.frame(), (CGRect{{20, 10}, {10, 20}})) << "sides are never negative";
}

TEST_F(ViewTest, NaNIsRefusedAndInfinityIsSurvived) {
    const auto view = ui::View::withFrame({{0, 0}, {10, 10}});
    EXPECT_ANY_THROW(view.setFrame({{std::nan(""), 0}, {10, 10}}));
    EXPECT_EQ(view.frame(), (CGRect{{0, 0}, {10, 10}}));
    const double infinity = std::numeric_limits<double>::infinity();
    view.setBounds({{0, 0}, {infinity, 1}});
    view.layoutIfNeeded();
}

TEST_F(ViewTest, AViewHasOnePlaceInTheTree) {
    const auto parent = ui::View::withFrame({});
    const auto other = ui::View::withFrame({});
    const auto a = ui::View::withFrame({});
    const auto b = ui::View::withFrame({});
    parent.addSubview(a);
    parent.addSubview(b);
    parent.addSubview(a);
    EXPECT_EQ(parent.subviews().count(), 2U);
    EXPECT_EQ(parent.subviews().at(1), static_cast<objc::Object>(a)) << "added again: in front";
    parent.send<"sendSubviewToBack:">(a);
    EXPECT_EQ(parent.subviews().at(0), static_cast<objc::Object>(a));
    parent.insertSubview(a, 99);
    EXPECT_EQ(parent.subviews().at(1), static_cast<objc::Object>(a));
    other.addSubview(a);
    EXPECT_EQ(parent.subviews().count(), 1U);
    EXPECT_EQ(a.superview(), other);
    a.addSubview(other);
    EXPECT_FALSE(other.superview()) << "a tree has no cycles";
    b.setTag(7);
    EXPECT_EQ(parent.viewWithTag(7), b);
    b.removeFromSuperview();
    EXPECT_FALSE(b.superview());
    EXPECT_EQ(parent.subviews().count(), 0U);
}

TEST_F(ViewTest, AViewThatOutlivesItsSuperviewHasNone) {
    objc::Strong<ui::View> child = ui::View::withFrame({});
    {
        const objc::Pool inner;
        ui::View::withFrame({}).addSubview(child);
    }
    EXPECT_FALSE(child.superview());
    child.removeFromSuperview();
}

TEST_F(ViewTest, ConvertsBetweenViewsThroughTransforms) {
    const auto root = ui::View::withFrame({{0, 0}, {300, 300}});
    const auto scaled = ui::View::withFrame({{100, 100}, {100, 100}});
    const auto leaf = ui::View::withFrame({{10, 10}, {20, 20}});
    root.addSubview(scaled);
    scaled.addSubview(leaf);
    scaled.setTransform({2, 0, 0, 2, 0, 0}); // about its middle: it covers (50, 50) to (250, 250)
    expectRect(leaf.convertRect(leaf.bounds(), root), {{70, 70}, {40, 40}});
    const CGPoint back = root.convertPoint({70, 70}, leaf);
    EXPECT_NEAR(back.x, 0, 1e-9);
    EXPECT_NEAR(back.y, 0, 1e-9);
}

TEST_F(ViewTest, AutoresizingSharesTheChange) {
    struct Case {
        ui::ViewAutoresizing mask;
        double x;
        double width;
    };
    using Flexible = ui::ViewAutoresizing;
    for (const auto& [mask, x, width] :
         {Case{{}, 20, 60}, Case{Flexible::flexibleWidth, 20, 160},
          Case{Flexible::flexibleLeftMargin, 120, 60},
          Case{Flexible::flexibleLeftMargin | Flexible::flexibleRightMargin, 70, 60}}) {
        const auto parent = ui::View::withFrame({{0, 0}, {100, 100}});
        const auto child = ui::View::withFrame({{20, 0}, {60, 10}});
        child.setAutoresizingMask(mask);
        parent.addSubview(child);
        parent.setFrame({{0, 0}, {200, 100}});
        EXPECT_NEAR(child.frame().origin.x, x, 1e-9) << static_cast<unsigned long>(mask);
        EXPECT_NEAR(child.frame().size.width, width, 1e-9) << static_cast<unsigned long>(mask);
    }
}

TEST_F(ViewTest, WindowsShowTheirControllersAndKnowTheKeyWindow) {
    const auto window = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
    const auto controller = ui::ViewController::make();
    window.setRootViewController(controller);
    EXPECT_FALSE(ui::Application::sharedApplication().windows().contains(window));
    window.makeKeyAndVisible();
    EXPECT_TRUE(window.isKeyWindow());
    EXPECT_TRUE(ui::Application::sharedApplication().windows().contains(window));
    EXPECT_EQ(controller.view().window(), window);
    EXPECT_EQ(controller.view().nextResponder(), static_cast<ui::Responder>(controller));
    EXPECT_EQ(controller.nextResponder(), static_cast<ui::Responder>(window));
    EXPECT_EQ(controller.view().safeAreaInsets(), (UIEdgeInsets{47, 0, 34, 0}));
}

TEST_F(ViewTest, AHiddenWindowIsNotTheKeyOne) {
    const auto shown = [] {
        const auto window = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
        window.makeKeyAndVisible();
        return window;
    };
    const auto first = shown();
    const auto covered = shown();
    const auto front = shown();
    covered.setHidden(true);
    EXPECT_TRUE(front.isKeyWindow()) << "another window's hiding does not concern it";
    front.setHidden(true);
    EXPECT_TRUE(first.isKeyWindow()) << "the frontmost that is left";
    {
        const objc::Pool inner;
        shown();
    }
    EXPECT_TRUE(first.isKeyWindow()) << "also when the key window dies";
    first.setHidden(true);
    EXPECT_FALSE(first.isKeyWindow());
}

TEST_F(ViewTest, ColoursOfOneValueAreEqualAndKeepTheirAlpha) {
    const auto red = ui::Color::withRed(1, 0, 0, 1);
    EXPECT_TRUE(red.isEqual(ui::Color::named("redColor")));
    double alpha = 0;
    red.withAlphaComponent(0.25).getRed(nullptr, nullptr, nullptr, &alpha);
    EXPECT_EQ(alpha, 0.25);
    EXPECT_FALSE(red.isEqual(u"red"_ns));
}

} // namespace
