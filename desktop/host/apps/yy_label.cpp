// Setting and drawing an application's own label.
#include "desktop/host/apps/yy_label.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/font.hpp"

#include <algorithm>
#include <cmath>

namespace desktop::host {

void YYLabel::setText(ns::String text) {
    text_ = text;
    redraw();
}

TextLayout YYLabel::layout(CGSize room) const {
    TextRun look;
    look.font = UIFont::valueOf(font_);
    look.colour = Color::valueOf(textColor_);
    TextFrame frame;
    frame.width = room.width > 0 ? room.width : TextFrame::unlimited;
    frame.height = room.height > 0 ? room.height : TextFrame::unlimited;
    frame.maximumLines = static_cast<std::size_t>(std::max(0L, numberOfLines_));
    return {text_.utf16(), look, frame};
}

void YYLabel::drawRect(CGRect) {
    const CGRect bounds = self().bounds();
    if (Canvas* canvas = currentCanvas(); canvas != nullptr) {
        const TextLayout text = layout(bounds.size);
        text.draw(
            canvas->context(),
            {bounds.origin.x, bounds.origin.y + (bounds.size.height - text.size().height) / 2});
    }
}

CGSize YYLabel::sizeThatFits(CGSize room) const {
    const Size size = layout(room).size();
    return {std::ceil(size.width), std::ceil(size.height)};
}

} // namespace desktop::host
