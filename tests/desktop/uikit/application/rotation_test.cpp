// Turning the phone: what controllers are told and asked, and what moves along.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "desktop/class.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/uikit/application/rotation.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/application/transition_coordinator.hpp"
#include "desktop/uikit/keyboard/keyboard_layout.hpp"

namespace {

using desktop::ScreenGeometry;
using ui::InterfaceOrientation;

struct TurnedControllerKind
    : objc::Kind<TurnedControllerKind, "TurnedController", ui::ViewController> {
    using Kind::Kind;
};

/// Writes down what it is told, and supports what the test wants.
class TurnedController : public desktop::PlatformClass<TurnedController, TurnedControllerKind> {
public:
    static auto methods() {
        return std::array{
            objc::method<"viewWillTransitionToSize:withTransitionCoordinator:",
                         &TurnedController::willTransition>(),
            objc::method<"viewSafeAreaInsetsDidChange", &TurnedController::safeAreaChanged>(),
            objc::method<"traitCollectionDidChange:", &TurnedController::traitsChanged>(),
            objc::method<"supportedInterfaceOrientations", &TurnedController::supported>(),
            objc::method<"shouldAutorotate", &TurnedController::turns>(),
        };
    }
    static TurnedControllerKind make() {
        static const Class once = registerClass();
        static_cast<void>(once);
        return TurnedControllerKind::make();
    }

    std::vector<std::string> news;
    unsigned long mask = 26;
    bool autorotates = true;

private:
    void willTransition(CGSize size, objc::Object coordinator) {
        news.emplace_back(size.width > size.height ? "wide" : "tall");
        using Step = desktop::TransitionCoordinator::Step;
        coordinator.send<"animateAlongsideTransition:completion:", bool>(
            Step::from([this](objc::Object) { news.emplace_back("alongside"); }),
            Step::from([this](objc::Object) { news.emplace_back("over"); }));
    }
    void safeAreaChanged() { news.emplace_back("safe area"); }
    void traitsChanged(objc::Object) { news.emplace_back("traits"); }
    [[nodiscard]] unsigned long supported() const { return mask; }
    [[nodiscard]] bool turns() const { return autorotates; }
};

class RotationTest : public tests::UIKitTest {
protected:
    void SetUp() override {
        desktop::Clock::shared().setMode(desktop::Clock::Mode::virtual_);
        window_.setRootViewController(controller_);
        window_.makeKeyAndVisible();
        desktop::uikit::layoutWindows();
        peer().news.clear();
    }
    void TearDown() override {
        peer().mask = 26;
        peer().autorotates = true;
        desktop::rotate(InterfaceOrientation::portrait);
        desktop::Clock::shared().setMode(desktop::Clock::Mode::real);
    }
    TurnedController& peer() { return TurnedController::of(controller_); }

    objc::Strong<TurnedControllerKind> controller_ = TurnedController::make();
    objc::Strong<ui::Window> window_ = ui::Window::withFrame({{}, {390, 844}});
};

TEST(ScreenGeometryRules, TheSafeAreaFollowsTheWayThePhoneIsHeld) {
    const auto notch = ScreenGeometry::upright(desktop::usualDevice());
    EXPECT_EQ(notch.safeArea, (UIEdgeInsets{47, 0, 34, 0}));
    const auto sideways = notch.heldAs(InterfaceOrientation::landscapeRight);
    EXPECT_EQ(sideways.size, (CGSize{844, 390}));
    EXPECT_EQ(sideways.safeArea, (UIEdgeInsets{0, 47, 21, 47}));
    EXPECT_EQ(sideways.heldAs(InterfaceOrientation::landscapeLeft).size, (CGSize{844, 390}));
    EXPECT_EQ(sideways.heldAs(InterfaceOrientation::portrait).safeArea, notch.safeArea);
    const auto button = ScreenGeometry::upright(desktop::deviceOfSize({375, 667}, 2));
    EXPECT_EQ(button.safeArea, (UIEdgeInsets{20, 0, 0, 0}));
    EXPECT_EQ(button.heldAs(InterfaceOrientation::landscapeLeft).safeArea, UIEdgeInsets());
}

TEST(LowKeyboard, ItsKeysLieInTheSafeAreaAndCanBeHit) {
    using namespace desktop;
    const auto keys = keyboardKeys({844, true, 47}, KeyPage::letters, false, u"换行");
    for (const Key& key : keys) {
        EXPECT_GE(key.box.x, 47);
        EXPECT_LE(key.box.x + key.box.width, 844 - 47);
        EXPECT_LE(key.box.y + key.box.height, keyboardHeight(true, true) - 15);
        EXPECT_EQ(keyAt(keys, {key.box.x + 1, key.box.y + key.box.height - 1}), &key);
    }
    EXPECT_EQ(keyboardHeight(true, true), 209);
}

TEST_F(RotationTest, TheControllerIsToldBeforeAndWhatMovesAlongEnds) {
    EXPECT_EQ(desktop::rotate(InterfaceOrientation::landscapeLeft),
              InterfaceOrientation::landscapeLeft);
    EXPECT_EQ(window_.frame(), (CGRect{{}, {844, 390}}));
    EXPECT_EQ(controller_.view().frame(), (CGRect{{}, {844, 390}}));
    EXPECT_EQ(peer().news, (std::vector<std::string>{"wide", "traits", "safe area", "alongside"}));
    EXPECT_EQ(controller_.traitCollection().verticalSizeClass(), ui::SizeClass::compact);
    desktop::run_loop::advance(1);
    EXPECT_EQ(peer().news.back(), "over");
}

TEST_F(RotationTest, WhatTheControllerDoesNotSupportStays) {
    peer().mask = 2; // portrait
    EXPECT_EQ(desktop::rotate(InterfaceOrientation::landscapeLeft), InterfaceOrientation::portrait);
    peer().mask = 30;
    peer().autorotates = false;
    EXPECT_EQ(desktop::rotate(InterfaceOrientation::landscapeLeft), InterfaceOrientation::portrait);
    peer().autorotates = true;
    EXPECT_EQ(desktop::rotate(InterfaceOrientation::portraitUpsideDown),
              InterfaceOrientation::portrait)
        << "the phone has a notch";
    EXPECT_TRUE(peer().news.empty());
}

TEST_F(RotationTest, APhoneWithAHomeButtonStandsOnItsHead) {
    peer().mask = 30;
    desktop::exchangeDevice(*desktop::deviceNamed("iPhone SE"));
    EXPECT_EQ(desktop::rotate(InterfaceOrientation::portraitUpsideDown),
              InterfaceOrientation::portraitUpsideDown);
    desktop::rotate(InterfaceOrientation::portrait);
    desktop::exchangeDevice(desktop::usualDevice());
}

} // namespace
