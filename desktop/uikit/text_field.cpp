// Text fields: their text, or the placeholder while there is none.
#include "desktop/uikit/text_field.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/drawing/text_layout.hpp"
#include "desktop/uikit/color.hpp"
#include "desktop/uikit/font.hpp"

namespace desktop {

using namespace ns::literals;

ui::TextField TextField::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    text_ = u""_ns;
    font_ = ui::Font::system(UIFont::defaultSize);
    textColor_ = ui::Color::label();
    return self();
}

void TextField::setText(ns::String text) { text_ = text ? text : u""_ns; }

void TextField::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    const bool empty = text_.length() == 0;
    const CGRect bounds = self().bounds();
    TextRun look;
    look.font = UIFont::valueOf(font_);
    look.colour = empty ? Color::valueOf(ui::Color::secondaryLabel()) : Color::valueOf(textColor_);
    TextFrame frame;
    frame.width = bounds.size.width;
    frame.maximumLines = 1;
    const TextLayout line((empty ? placeholder_ : text_).utf16(), look, frame);
    line.draw(canvas->context(), {0, (bounds.size.height - line.size().height) / 2});
}

} // namespace desktop
