// Popovers: their place and shape.
#include "desktop/uikit/presentation/transition_view.hpp"

#include "bindings/uikit/popover_presentation_controller.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"

namespace desktop {
namespace {

using Side = ui::PopoverArrowDirection;

/// The arrow as a triangle whose base lies a little inside of the box.
void traceArrow(cairo_t* context, const PopoverPlace& place) {
    constexpr double overlap = 1;
    constexpr double half = PopoverPlace::arrowBase / 2;
    constexpr double length = PopoverPlace::arrowHeight + overlap;
    const CGPoint tip = place.tip;
    const double sign = place.side == Side::up || place.side == Side::left ? 1 : -1;
    cairo_new_path(context);
    cairo_move_to(context, tip.x, tip.y);
    if (place.side == Side::up || place.side == Side::down) {
        cairo_line_to(context, tip.x + half, tip.y + sign * length);
        cairo_line_to(context, tip.x - half, tip.y + sign * length);
    } else {
        cairo_line_to(context, tip.x + sign * length, tip.y + half);
        cairo_line_to(context, tip.x + sign * length, tip.y - half);
    }
    cairo_close_path(context);
}

} // namespace

PopoverViewKind PopoverView::around(ui::View content, ui::Color background) {
    const auto view = PopoverViewKind::make<"initWithFrame:">(CGRect());
    PopoverView& peer = of(view);
    peer.content_ = content;
    peer.background_ = background                  ? background
                       : content.backgroundColor() ? content.backgroundColor()
                                                   : ui::Color::systemBackground();
    peer.clip_ = ui::View::withFrame({});
    peer.clip_.setClipsToBounds(true);
    peer.clip_.layer().setCornerRadius(PopoverPlace::cornerRadius);
    peer.clip_.addSubview(content);
    view.addSubview(peer.clip_);
    return view;
}

void PopoverView::moveTo(const PopoverPlace& place) {
    const CGRect frame = place.frame();
    place_ = place;
    place_.tip = {place.tip.x - frame.origin.x, place.tip.y - frame.origin.y};
    place_.box.origin = {place.box.origin.x - frame.origin.x, place.box.origin.y - frame.origin.y};
    self().setFrame(frame);
    clip_.setFrame(place_.box);
    content_.setFrame({{}, place_.box.size});
    self().setNeedsDisplay();
}

void PopoverView::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    const Colour colour = Color::valueOf(background_);
    canvas->fill(rectangle(place_.box), colour, PopoverPlace::cornerRadius);
    traceArrow(canvas->context(), place_);
    cairo_set_source_rgba(canvas->context(), colour.red, colour.green, colour.blue, colour.alpha);
    cairo_fill(canvas->context());
}

} // namespace desktop
