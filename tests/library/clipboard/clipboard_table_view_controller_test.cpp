// What the list leaves behind when it goes: nothing.
#include "library/clipboard/clipboard_table_view_controller.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/hook.hpp"
#include "tests/library/support/host_window.hpp"
#include "tests/support/own_process.hpp"

#include <set>

namespace wentra::clipboard {
namespace {

std::set<id>& forgotten() {
    static std::set<id> observers;
    return observers;
}

void removed(objc::Next<void(objc::Object)> next, ns::NotificationCenter, objc::Object observer) {
    forgotten().insert(observer.raw());
    next(observer);
}

constexpr std::array hooks{objc::hook<"removeObserver:", &removed>()};

using ClipboardList = test::WithWindow;

TEST_F(ClipboardList, TakesItsObservationBackWhenItDies) {
    tests::inProcessOfItsOwn([] {
        registerClipboardTableViewController();
        ASSERT_EQ(objc::install(hooks[0]), objc::Outcome::installed);
        id list = nullptr;
        {
            const objc::Pool pool;
            const auto controller = ClipboardTableViewController::make();
            list = controller.raw();
            EXPECT_TRUE(controller.view());
        }
        EXPECT_TRUE(forgotten().contains(list));
    });
}

} // namespace
} // namespace wentra::clipboard
