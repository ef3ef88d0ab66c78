// Measuring strings.
#include "desktop/uikit/string_drawing.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/uikit/string_drawing.hpp"
#include "desktop/drawing/text_layout.hpp"
#include "desktop/uikit/attributed_text.hpp"
#include "desktop/uikit/font.hpp"

namespace desktop {
namespace {

/// A line break at the end takes no room, unless there is nothing else.
std::u16string measured(ns::String text) {
    std::u16string units = text.utf16();
    if (units == u"\n") {
        units = u" ";
    } else if (units.ends_with(u'\n')) {
        units.pop_back();
    }
    return units;
}

CGRect boundingRect(ns::String text, CGSize room, unsigned long options, ns::Dictionary attributes,
                    objc::Object) {
    constexpr double standardSize = 12; // where the attributes name no font
    TextRun plain;
    plain.font = UIFont::valueOf(ui::Font::system(standardSize));
    TextFrame frame;
    frame.lineBreakMode = LineBreakMode::wordWrapping;
    if ((options & ui::string_drawing::usesLineFragmentOrigin) != 0) {
        frame.width = room.width;
        frame.height = room.height;
    } else {
        frame.maximumLines = 1;
    }
    const Size size = TextLayout(measured(text), lookOf(attributes, plain), frame).size();
    return {{}, {size.width, size.height}};
}

} // namespace

void installStringDrawing() {
    objc::install(objc::addition<"NSString", "boundingRectWithSize:options:attributes:context:",
                                 &boundingRect>());
}

} // namespace desktop
