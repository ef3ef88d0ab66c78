// Placing scroll indicators, and letting them fade.
#include "desktop/uikit/scrolling/scroll_indicators.hpp"

#include "desktop/quartzcore/animation/animation.hpp"
#include "desktop/uikit/scrolling/scroll_rules.hpp"

#include <utility>

namespace desktop {
namespace {

// Points, as on the phone.
constexpr double thickness = 3;
constexpr double gap = 3;

objc::Strong<ui::View> mark(ui::View scrollView, ui::Color color) {
    const auto view = ui::View::withFrame({});
    view.setUserInteractionEnabled(false);
    view.setBackgroundColor(color);
    view.layer().setCornerRadius(thickness / 2);
    scrollView.addSubview(view);
    return view;
}

void showIn(ui::View scrollView, objc::Strong<ui::View>& view, ui::Color color) {
    if (!view) {
        view = mark(scrollView, color);
    }
}

void fadeOut(const objc::Strong<ui::View>& view) {
    if (!view) {
        return;
    }
    AnimationTiming timing;
    timing.delay = 0.4;
    timing.duration = 0.3;
    Animation::perform(
        timing, [&view] { view.setAlpha(0); }, [view](bool) { view.removeFromSuperview(); });
}

} // namespace

void ScrollIndicators::show(ui::View scrollView, const ScrollExtent& extent, ui::Color color) {
    if (extent.vertical) {
        showIn(scrollView, vertical_, color);
    }
    if (extent.horizontal) {
        showIn(scrollView, horizontal_, color);
    }
    place(extent);
}

void ScrollIndicators::place(const ScrollExtent& extent) const {
    const auto& [content, visible, covered, inset, vertical, horizontal] = extent;
    const CGRect room{
        {visible.origin.x + inset.left + covered.left + gap,
         visible.origin.y + inset.top + covered.top + gap},
        {visible.size.width - inset.left - inset.right - covered.left - covered.right - 2 * gap,
         visible.size.height - inset.top - inset.bottom - covered.top - covered.bottom - 2 * gap}};
    if (vertical_) {
        const IndicatorSpan span =
            indicatorSpan(content.height, visible.size.height - covered.top - covered.bottom,
                          visible.origin.y + covered.top, room.size.height);
        const double left = visible.origin.x + visible.size.width - inset.right - gap - thickness;
        vertical_.setFrame({{left, room.origin.y + span.start}, {thickness, span.length}});
    }
    if (horizontal_) {
        const IndicatorSpan span =
            indicatorSpan(content.width, visible.size.width - covered.left - covered.right,
                          visible.origin.x + covered.left, room.size.width);
        const double top = visible.origin.y + visible.size.height - inset.bottom - gap - thickness;
        horizontal_.setFrame({{room.origin.x + span.start, top}, {span.length, thickness}});
    }
}

void ScrollIndicators::fade() {
    fadeOut(std::exchange(vertical_, nullptr));
    fadeOut(std::exchange(horizontal_, nullptr));
}

} // namespace desktop
