// The host's top controller.
#include "library/common/screens.hpp"

#include "bindings/objc/hook.hpp"
#include "tests/library/support/host_window.hpp"

namespace wentra {
namespace {

using Screens = test::WithWindow;

ui::ViewController leaving;
bool isLeaving(objc::Next<bool()> next, ui::ViewController controller) {
    return controller == leaving || next();
}

TEST_F(Screens, AControllerThatIsBeingDismissedIsNotTheTopOne) {
    constexpr bool animated = false;

    const auto first = ui::ViewController::make();
    const auto second = ui::ViewController::make();
    root().present(first, animated);
    first.present(second, animated);
    ASSERT_EQ(topViewController(), second);

    ASSERT_EQ(objc::install(objc::hook<"isBeingDismissed", &isLeaving>()),
              objc::Outcome::installed);
    leaving = second;
    EXPECT_EQ(topViewController(), first);
    leaving = first;
    EXPECT_EQ(topViewController(), root()) << "what it presents goes with it";
}

} // namespace
} // namespace wentra
