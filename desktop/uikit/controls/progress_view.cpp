// Drawing track and bar.
#include "desktop/uikit/controls/progress_view.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>

namespace desktop {
namespace {

constexpr double standardHeight = 4;

} // namespace

ui::ProgressView ProgressView::initWithStyle(ui::ProgressViewStyle style) {
    self().send<"initWithFrame:", ui::View>(CGRect{{}, {0, standardHeight}});
    style_ = style;
    return self();
}

void ProgressView::setProgress(float progress) {
    progress_ = progress > 0 ? std::min(progress, 1.0F) : 0; // not a number is nothing, too
    redraw();
}

void ProgressView::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    const CGRect bounds = self().bounds();
    const double radius = bounds.size.height / 2;
    const ui::Color track = trackColor_ ? trackColor_ : ui::Color::named("systemGray5Color");
    canvas->fill(rectangle(bounds), Color::valueOf(track), radius);
    CGRect bar = bounds;
    bar.size.width *= static_cast<double>(progress_);
    const ui::Color color = barColor_ ? ui::Color(barColor_) : self().tintColor();
    canvas->fill(rectangle(bar), Color::valueOf(color), radius);
}

CGSize ProgressView::sizeThatFits(CGSize size) const { return {size.width, standardHeight}; }

CGSize ProgressView::intrinsicContentSize() const { return {noIntrinsicMetric, standardHeight}; }

} // namespace desktop
