// Drawing the capsule, and turning it by a tap.
#include "desktop/uikit/controls/switch.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"

namespace desktop {
namespace {

constexpr CGSize ownSize{51, 31}; // points, as on the phone

} // namespace

ui::Switch Switch::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(CGRect{frame.origin, ownSize});
    self().setBackgroundColor(ui::Color::clear());
    self().addTarget(self(), objc::selector<"turn">(), ui::ControlEvents::touchUpInside);
    return self();
}

void Switch::setOn(bool on) {
    on_ = on;
    self().setNeedsDisplay();
}

void Switch::turn() {
    setOn(!on_);
    self().sendActions(ui::ControlEvents::valueChanged);
}

void Switch::drawRect(CGRect) {
    Canvas* const canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    constexpr double inset = 2;
    constexpr double thumb = ownSize.height - 2 * inset;
    const ui::Color track = ui::Color::named(on_ ? "systemGreenColor" : "systemGray4Color");
    canvas->fill({0, 0, ownSize.width, ownSize.height}, Color::valueOf(track), ownSize.height / 2);
    const double left = on_ ? ownSize.width - inset - thumb : inset;
    canvas->fill({left, inset, thumb, thumb}, {1, 1, 1, 1}, thumb / 2);
}

CGSize Switch::sizeThatFits(CGSize) const { return ownSize; }

} // namespace desktop
