// Settings' root controller gets a pad, which follows the pasteboard from then on.
#include "library/scratchpad/scratch_pad_hook.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/preferences/split_view_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/preferences/preferences.hpp"
#include "library/scratchpad/scratch_pad.hpp"

#include <array>

namespace wentra::scratchpad {
namespace {

using namespace ns::literals;

/// For as long as the process lives: nothing ever takes the observer back.
void followPasteboard(const ScratchPad& pad) {
    ns::NotificationCenter::defaultCenter().addObserverForName(
        u"UIPasteboardChangedNotification"_ns, nullptr, ns::OperationQueue::mainQueue(),
        objc::Block<void(ns::Notification)>::from([pad](ns::Notification) {
            if (const auto text = ui::Pasteboard::generalPasteboard().string(); text) {
                pad.add(text);
            }
        }));
}

void loaded(objc::Next<void()> next, ps::SplitViewController controller) {
    next();
    if (preferences::Preferences::read().on(preferences::keys.scratchPad)) {
        followPasteboard(ScratchPad::over(controller));
    }
}

} // namespace

std::span<const objc::Change> scratchPadHooks() {
    static constexpr std::array changes{
        objc::hook<"viewDidLoad", &loaded>(),
    };
    return changes;
}

} // namespace wentra::scratchpad
