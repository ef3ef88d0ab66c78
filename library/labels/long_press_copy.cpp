// The label's arrival in a view. The gesture itself is not there yet: calls pass through.
#include "library/labels/long_press_copy.hpp"

#include "bindings/uikit/label.hpp"

#include <array>

namespace wentra::labels {
namespace {

void arrived(objc::Next<void()> next, ui::Label) { next(); }

} // namespace

std::span<const objc::Change> longPressCopyLoad() {
    static constexpr std::array changes{
        objc::exchange<"UILabel", "didMoveToSuperview", "swizzled_didMoveToSuperview", &arrived>(),
    };
    return changes;
}

} // namespace wentra::labels
