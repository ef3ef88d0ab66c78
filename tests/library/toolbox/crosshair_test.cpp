// The crosshair in an application that comes up before or after the toolbox.
#include "library/toolbox/panel/crosshair.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/uikit/window_scene.hpp"
#include "tests/library/support/host_window.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using CrosshairScreens = test::WithWindow;

bool active = true;
long activation(objc::Next<long()> next, ui::WindowScene) {
    constexpr long foregroundInactive = 1;
    return active ? next() : foregroundInactive;
}

void activate() {
    ns::NotificationCenter::defaultCenter().post(u"UISceneDidActivateNotification"_ns, nullptr);
}

TEST_F(CrosshairScreens, IsAttachedWhenASceneBecomesActive) {
    ASSERT_EQ(objc::install(objc::hook<"activationState", &activation>()),
              objc::Outcome::installed);
    registerFloatingViewController();
    const ui::View screen = root().view();
    const unsigned long recognizers = screen.gestureRecognizers().count();
    active = false;
    const auto controller = FloatingViewController::make();
    static_cast<void>(controller.view());
    const auto label = controller.send<"coordinateLabel", ui::Label>();
    EXPECT_FALSE(label.superview());
    activate();
    EXPECT_FALSE(label.superview()) << "another scene's activation";

    active = true;
    activate();
    EXPECT_EQ(label.superview(), screen);
    activate();
    EXPECT_EQ(screen.gestureRecognizers().count(), recognizers + 1) << "once only";
}

} // namespace
} // namespace wentra::toolbox
