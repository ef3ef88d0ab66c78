// The dots, in the middle of the control.
#include "desktop/uikit/controls/page_control.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"

namespace desktop {

ui::PageControl PageControl::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    self().setBackgroundColor(ui::Color::clear());
    return self();
}

void PageControl::drawRect(CGRect) {
    constexpr double dot = 7;
    constexpr double pitch = 16;
    Canvas* const canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    const CGSize size = self().bounds().size;
    const double first = (size.width - pitch * static_cast<double>(count_ - 1) - dot) / 2;
    for (long page = 0; page < count_; ++page) {
        const ui::Color color = ui::Color::label().withAlphaComponent(page == current_ ? 0.8 : 0.3);
        canvas->fill({first + pitch * static_cast<double>(page), (size.height - dot) / 2, dot, dot},
                     Color::valueOf(color), dot / 2);
    }
}

} // namespace desktop
