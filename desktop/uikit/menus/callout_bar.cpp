// Drawing the bar, and choosing what is tapped.
#include "desktop/uikit/menus/callout_bar.hpp"

#include "bindings/uikit/touch.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/drawing/text_layout.hpp"
#include "desktop/uikit/menus/menu_controller.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"

#include <utility>

namespace desktop {
namespace {

// The bar is dark in both appearances, and stands out from a dark page.
constexpr Colour backgroundOnLight{0.11, 0.11, 0.118};
constexpr Colour backgroundOnDark{0.227, 0.227, 0.235};
constexpr Colour pressedBackground{0.28, 0.28, 0.29};
constexpr Colour separator{1, 1, 1, 0.22};
constexpr Colour ink{1, 1, 1};
constexpr double corner = 8;
constexpr double fontSize = 14;
constexpr double hairline = 1.0 / 3;

TextLayout lay(std::u16string_view text, double width) {
    TextRun look;
    look.font.size = fontSize;
    look.colour = ink;
    TextFrame frame;
    frame.width = width;
    frame.alignment = TextAlignment::center;
    frame.maximumLines = 1;
    return {text, look, frame};
}

} // namespace

std::vector<objc::MethodRow> CalloutBar::methods() {
    return {
        objc::method<"initWithFrame:", &CalloutBar::initWithFrame>(),
        objc::method<"touchesBegan:withEvent:", &CalloutBar::touchesBegan>(),
        objc::method<"touchesMoved:withEvent:", &CalloutBar::touchesMoved>(),
        objc::method<"touchesEnded:withEvent:", &CalloutBar::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &CalloutBar::touchesCancelled>(),
        objc::method<"drawRect:", &CalloutBar::drawRect>(),
    };
}

CalloutBarKind CalloutBar::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    return self();
}

void CalloutBar::present(const std::vector<objc::Strong<ui::MenuItem>>& items, CGRect target,
                         CGRect screen) {
    items_ = items;
    target_ = target;
    screen_ = screen;
    std::vector<double> widths;
    for (const auto& item : items_) {
        widths.push_back(lay(item.title().utf16(), TextFrame::unlimited).size().width);
    }
    pages_ = calloutPages(widths, screen.size.width - 2 * calloutMargin);
    turnTo(0);
}

void CalloutBar::turnTo(std::size_t page) {
    page_ = page;
    pressed_ = nullptr;
    place_ = placeCallout(widthOf(pages_[page]), rectangle(target_), rectangle(screen_));
    const Rectangle& box = place_.box;
    self().setFrame({{box.x, box.y}, {box.width, box.height}});
    self().setNeedsDisplay();
}

void CalloutBar::touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event) {
    if (pages_.empty()) {
        return;
    }
    const auto touch = touches.allObjects().first();
    const double x = touch.locationIn(self()).x;
    const CalloutPart* found = nullptr;
    for (const CalloutPart& part : pages_[page_]) {
        found = x >= part.x && x < part.x + part.width ? &part : found;
    }
    if (std::exchange(pressed_, found) != found) {
        self().setNeedsDisplay();
    }
}

void CalloutBar::touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event) {
    touchesBegan(touches, event);
    if (pressed_ == nullptr) {
        return;
    }
    const CalloutPart part = *std::exchange(pressed_, nullptr);
    switch (part.role) {
    case CalloutPart::Role::back:
        turnTo(page_ - 1);
        break;
    case CalloutPart::Role::forward:
        turnTo(page_ + 1);
        break;
    case CalloutPart::Role::item:
        MenuController::of(ui::MenuController::sharedMenuController()).choose(items_[part.item]);
        break;
    }
}

void CalloutBar::touchesCancelled(ns::SetOf<ui::Touch>, ui::Event) {
    pressed_ = nullptr;
    self().setNeedsDisplay();
}

void CalloutBar::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr || pages_.empty()) {
        return;
    }
    const double top = place_.isAbove ? 0 : calloutArrowHeight;
    const Rectangle bar{0, top, place_.box.width, calloutBarHeight};
    const Colour background = CurrentTraits::get().style == ui::InterfaceStyle::dark
                                  ? backgroundOnDark
                                  : backgroundOnLight;
    canvas->fill(bar, background, corner);
    cairo_t* context = canvas->context();
    const double base = place_.isAbove ? calloutBarHeight : calloutArrowHeight;
    const double tip = place_.isAbove ? base + calloutArrowHeight : 0;
    cairo_set_source_rgba(context, background.red, background.green, background.blue,
                          background.alpha);
    cairo_move_to(context, place_.tip - calloutArrowHeight, base);
    cairo_line_to(context, place_.tip, tip);
    cairo_line_to(context, place_.tip + calloutArrowHeight, base);
    cairo_fill(context);
    canvas->save();
    canvas->clip(bar, corner);
    for (const CalloutPart& part : pages_[page_]) {
        if (&part == pressed_) {
            canvas->fill({part.x, top, part.width, calloutBarHeight}, pressedBackground);
        }
        if (part.x > 0) {
            canvas->fill({part.x, top, hairline, calloutBarHeight}, separator);
        }
        const std::u16string text = part.role == CalloutPart::Role::back ? u"◀"
                                    : part.role == CalloutPart::Role::forward
                                        ? u"▶"
                                        : items_[part.item].title().utf16();
        const TextLayout title = lay(text, part.width);
        title.draw(context, {part.x, top + (calloutBarHeight - title.size().height) / 2});
    }
    canvas->restore();
}

} // namespace desktop
