// The pasteboard's notifications, whatever thread they come on.
#include "library/toolbox/view_model.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/text_view.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "tests/library/support/host_window.hpp"

#include <thread>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using ViewModelThreads = test::WithWindow;

TEST_F(ViewModelThreads, ViewsAreTouchedOnTheMainThreadOnly) {
    registerFloatingViewController();
    registerViewModel();
    const auto model = ViewModel::make();
    const auto ball = model.send<"floatingView", ui::View>();
    const auto editor = model.send<"copiedTextView", ui::TextView>();
    ui::Pasteboard::generalPasteboard().setString(u"copied"_ns);
    desktop::run_loop::runUntilIdle();
    editor.setText(u"edited"_ns);

    std::thread([model] {
        const objc::Pool pool;
        model.send<"pasteboardChanged:">(objc::Object());
        model.send<"pasteboardChanged1:">(objc::Object());
    }).join();
    EXPECT_FALSE(ball.superview());
    EXPECT_EQ(editor.text().utf8(), "edited");

    desktop::run_loop::runUntilIdle();
    EXPECT_TRUE(ball.superview());
    EXPECT_EQ(editor.text().utf8(), "copied");

    model.hideFloatingView();
    model.send<"pasteboardChanged1:">(objc::Object());
    EXPECT_TRUE(ball.superview()) << "at once on the main thread";
}

} // namespace
} // namespace wentra::toolbox
