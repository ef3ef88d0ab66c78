// Text views: setting and drawing their text.
#include "desktop/uikit/text_view.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/color.hpp"
#include "desktop/uikit/font.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

constexpr double defaultSize = 12;
constexpr double padding = 5; // the text container's, on each side of a line

} // namespace

ui::TextView TextView::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    text_ = u""_ns;
    textColor_ = ui::Color::label();
    setFont(nullptr);
    self().setBackgroundColor(ui::Color::systemBackground());
    return self();
}

void TextView::setText(ns::String text) {
    text_ = text ? text : u""_ns; // a text view's text is never nil
    const CGSize size = self().bounds().size;
    self().setContentSize({size.width, sizeThatFits(size).height});
}

void TextView::setFont(ui::Font font) { font_ = font ? font : ui::Font::system(defaultSize); }

TextLayout TextView::layout(double width) const {
    TextFrame frame;
    frame.width = width - inset_.left - inset_.right - 2 * padding;
    frame.lineBreakMode = LineBreakMode::wordWrapping;
    TextRun look;
    look.font = UIFont::valueOf(font_);
    look.colour = Color::valueOf(textColor_);
    return {text_.utf16(), look, frame};
}

void TextView::drawRect(CGRect) {
    if (Canvas* canvas = currentCanvas(); canvas != nullptr) {
        layout(self().bounds().size.width)
            .draw(canvas->context(), {inset_.left + padding, inset_.top});
    }
}

CGSize TextView::sizeThatFits(CGSize room) const {
    const Size text = layout(room.width).size();
    return {room.width, text.height + inset_.top + inset_.bottom};
}

} // namespace desktop
