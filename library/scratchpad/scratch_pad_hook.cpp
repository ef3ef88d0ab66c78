// Settings' root controller has loaded. The pad is not there yet: calls pass through.
#include "library/scratchpad/scratch_pad_hook.hpp"

#include "bindings/uikit/view_controller.hpp"

#include <array>

namespace wentra::scratchpad {
namespace {

void loaded(objc::Next<void()> next, ui::ViewController) { next(); }

} // namespace

std::span<const objc::Change> scratchPadHooks() {
    static constexpr std::array changes{
        objc::hook<"PSSplitViewController", "viewDidLoad", &loaded>(),
    };
    return changes;
}

} // namespace wentra::scratchpad
