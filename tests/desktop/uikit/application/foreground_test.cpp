// Leaving the front and coming back: what the application is told, and what does not reach it.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/application/home_screen.hpp"
#include "desktop/uikit/application/screen_image.hpp"
#include "desktop/uikit/events/shake.hpp"

namespace {

using desktop::Foreground;

std::vector<std::string>& news() {
    static std::vector<std::string> told;
    return told;
}

struct ShakenDelegateKind : objc::Kind<ShakenDelegateKind, "WTTestShakenDelegate", ui::View> {
    using Kind::Kind;
};

/// The application's delegate, and a view that hears of shakes.
class ShakenDelegate
    : public objc::Peer<ShakenDelegate, ShakenDelegateKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"applicationWillResignActive:", &ShakenDelegate::tell<'r'>>(),
            objc::method<"applicationDidEnterBackground:", &ShakenDelegate::tell<'b'>>(),
            objc::method<"applicationWillEnterForeground:", &ShakenDelegate::tell<'f'>>(),
            objc::method<"applicationDidBecomeActive:", &ShakenDelegate::tell<'a'>>(),
            objc::method<"canBecomeFirstResponder", &ShakenDelegate::yes>(),
            objc::method<"motionBegan:withEvent:", &ShakenDelegate::moved<'<'>>(),
            objc::method<"motionEnded:withEvent:", &ShakenDelegate::moved<'>'>>(),
        };
    }

private:
    /// With the application's state at that moment.
    template <char What>
    void tell(ui::Application application) {
        const long state = application.send<"applicationState", long>();
        news().push_back(std::string(1, What) + std::to_string(state));
    }
    template <char What>
    void moved(long motion, ui::Event event) {
        const bool isShake =
            motion == 1 && event.send<"type", long>() == 1 && event.send<"subtype", long>() == 1;
        news().push_back(std::string(1, What) + (isShake ? "shake" : "?"));
    }
    [[nodiscard]] bool yes() const { return true; }
};

class ForegroundTest : public tests::TouchTest {
protected:
    void SetUp() override {
        TouchTest::SetUp();
        static const Class once = ShakenDelegate::registerClass();
        static_cast<void>(once);
        delegate_ = ShakenDelegateKind::make<"initWithFrame:">(CGRect{{0, 0}, {50, 50}});
        window_.addSubview(delegate_);
        application_.send<"setDelegate:">(delegate_);
        news().clear();
    }
    void TearDown() override {
        Foreground::shared().showHomeScreen(false);
        Foreground::shared().lock(false);
        application_.send<"setDelegate:">(objc::Object());
        TouchTest::TearDown();
    }

    ui::Application application_ = ui::Application::sharedApplication();
    objc::Strong<ShakenDelegateKind> delegate_;
};

TEST_F(ForegroundTest, TheDelegateIsToldInOrderAndOnce) {
    Foreground& front = Foreground::shared();
    front.showHomeScreen(true);
    EXPECT_EQ(news(), (std::vector<std::string>{"r0", "b2"}));
    front.lock(true);
    front.lock(false);
    EXPECT_EQ(news().size(), 2U) << "it was in the background already";
    front.showHomeScreen(false);
    EXPECT_EQ(news(), (std::vector<std::string>{"r0", "b2", "f2", "a0"}));
    front.lock(true);
    EXPECT_EQ(front.sceneState(), ui::SceneActivationState::background);
    front.lock(false);
    EXPECT_EQ(front.sceneState(), ui::SceneActivationState::foregroundActive);
    EXPECT_EQ(news().size(), 8U);
}

TEST_F(ForegroundTest, NotificationsTellItToo) {
    using namespace ns::literals;
    const auto center = ns::NotificationCenter::defaultCenter();
    int heard = 0;
    std::vector<objc::Strong<objc::Object>> observers;
    for (const auto& name : {u"UIApplicationDidEnterBackgroundNotification"_ns,
                             u"UISceneWillEnterForegroundNotification"_ns}) {
        observers.emplace_back(center.addObserverForName(
            name, nullptr, nullptr,
            objc::Block<void(ns::Notification)>::from([&heard](ns::Notification) { ++heard; })));
    }
    Foreground::shared().showHomeScreen(true);
    EXPECT_EQ(heard, 1);
    Foreground::shared().showHomeScreen(false);
    EXPECT_EQ(heard, 2);
    for (const auto& observer : observers) {
        center.send<"removeObserver:">(observer);
    }
}

TEST_F(ForegroundTest, FingersAreTakenAwayAndOnlyTheIconTakesNewOnes) {
    const auto view = touchedView(window_, {{0, 0}, {390, 844}});
    down({110, 120});
    Foreground::shared().showHomeScreen(true);
    EXPECT_EQ(seen(view), "bc");
    up();
    tap({300, 600});
    EXPECT_EQ(seen(view), "bc");
    EXPECT_TRUE(Foreground::shared().isHomeScreenShown());
    const desktop::Rectangle icon = desktop::homeScreenIcon({390, 844});
    tap({icon.x + icon.width / 2, icon.y + icon.height / 2});
    EXPECT_FALSE(Foreground::shared().isHomeScreenShown());
    EXPECT_EQ(seen(view), "bc");
    tap({300, 600});
    EXPECT_EQ(seen(view), "bcbe");
}

TEST_F(ForegroundTest, WhatIsInFrontIsDrawn) {
    desktop::ScreenImage screen(1);
    for (const bool shown : {true, false}) {
        screen.refresh();
        Foreground::shared().showHomeScreen(shown);
        EXPECT_FALSE(screen.refresh().empty());
    }
}

TEST_F(ForegroundTest, ALockedPhoneHasNoIcons) {
    Foreground::shared().showHomeScreen(true);
    Foreground::shared().lock(true);
    const desktop::Rectangle icon = desktop::homeScreenIcon({390, 844});
    tap({icon.x + icon.width / 2, icon.y + icon.height / 2});
    EXPECT_TRUE(Foreground::shared().isHomeScreenShown());
}

TEST_F(ForegroundTest, AShakeReachesTheFirstResponderWhileItsApplicationIsInFront) {
    delegate_.becomeFirstResponder();
    desktop::shakePhone();
    EXPECT_EQ(news(), (std::vector<std::string>{"<shake", ">shake"}));
    Foreground::shared().lock(true);
    news().clear();
    desktop::shakePhone();
    EXPECT_EQ(news(), std::vector<std::string>());
    delegate_.resignFirstResponder();
}

} // namespace
