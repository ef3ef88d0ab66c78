// Drawing selections and letting the caret blink.
#include "desktop/uikit/text/text_selection_view.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"

#include <utility>

namespace desktop {
namespace {

// As on the phone: a light tint over the text, and a pin at each end.
constexpr double selectionAlpha = 0.2;
constexpr double pinWidth = 2;

void drawPin(Canvas& canvas, const Colour& tint, CGPoint top, double height, bool headAbove) {
    constexpr double pinHead = TextSelectionView::pinHead;
    canvas.fill({top.x - pinWidth / 2, top.y, pinWidth, height}, tint);
    const double middle = headAbove ? top.y - pinHead / 2 : top.y + height + pinHead / 2;
    canvas.fill({top.x - pinHead / 2, middle - pinHead / 2, pinHead, pinHead}, tint, pinHead / 2);
}

} // namespace

std::vector<objc::MethodRow> TextSelectionView::methods() {
    return {
        objc::method<"initWithFrame:", &TextSelectionView::initWithFrame>(),
        objc::method<"drawRect:", &TextSelectionView::drawRect>(),
    };
}

TextSelectionView::~TextSelectionView() { Clock::shared().cancel(next_); }

TextSelectionViewKind TextSelectionView::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    self().setUserInteractionEnabled(false);
    caret_ = ui::View::withFrame({});
    caret_.layer().setCornerRadius(1);
    caret_.setHidden(true);
    self().addSubview(caret_);
    return self();
}

void TextSelectionView::show(std::vector<CGRect> lines, std::optional<CGRect> caret) {
    const CGRect visible = self().superview().bounds();
    const auto local = [visible](CGRect rect) {
        rect.origin.x -= visible.origin.x;
        rect.origin.y -= visible.origin.y;
        return rect;
    };
    self().setFrame(visible);
    for (CGRect& line : lines) {
        line = local(line);
    }
    if (std::exchange(lines_, std::move(lines)) != lines_) {
        self().setNeedsDisplay();
    }
    if (caret) {
        caret = local(*caret);
    }
    if (std::exchange(caretPlace_, caret) == caret) {
        return;
    }
    Clock::shared().cancel(std::exchange(next_, 0));
    caret_.setHidden(!caret);
    if (caret) {
        caret_.setBackgroundColor(self().tintColor());
        caret_.setFrame(*caret);
        next_ = Clock::shared().at(Clock::shared().now() + blinking, [this] { blink(); });
    }
}

void TextSelectionView::blink() {
    const objc::Pool pool;
    caret_.setHidden(!caret_.isHidden());
    next_ = Clock::shared().at(Clock::shared().now() + blinking, [this] { blink(); });
}

void TextSelectionView::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr || lines_.empty()) {
        return;
    }
    const Colour tint = Color::valueOf(self().tintColor());
    Colour light = tint;
    light.alpha *= selectionAlpha;
    for (const CGRect& line : lines_) {
        canvas->fill(rectangle(line), light);
    }
    const CGRect first = lines_.front();
    const CGRect last = lines_.back();
    drawPin(*canvas, tint, first.origin, first.size.height, true);
    drawPin(*canvas, tint, {last.origin.x + last.size.width, last.origin.y}, last.size.height,
            false);
}

} // namespace desktop
