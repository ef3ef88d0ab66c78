// Measuring strings.
#include "desktop/uikit/values/string_drawing.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/uikit/string_drawing.hpp"
#include "desktop/drawing/text_flow.hpp"
#include "desktop/uikit/values/attributed_text.hpp"
#include "desktop/uikit/values/font.hpp"

namespace desktop {
namespace {

/// How many units the line break at the text's end has.
std::size_t lineBreakLength(std::u16string_view text) {
    constexpr std::u16string_view lineBreaks = u"\n\r\u0085\u2028\u2029";
    if (text.ends_with(u"\r\n")) {
        return 2;
    }
    return !text.empty() && lineBreaks.find(text.back()) != lineBreaks.npos ? 1 : 0;
}

/// A line break at the end takes no room, unless there is nothing else.
std::u16string measured(ns::String text) {
    std::u16string units = text.utf16();
    const std::size_t length = lineBreakLength(units);
    if (length > 0 && length == units.size()) {
        return u" ";
    }
    units.resize(units.size() - length);
    return units;
}

class OneLook : public TextSource {
public:
    OneLook(std::u16string_view text, const TextRun& look) : text_(text), look_(look) {}

    [[nodiscard]] std::size_t length() const override { return text_.size(); }
    [[nodiscard]] std::u16string units(Stretch stretch) const override {
        return std::u16string(text_.substr(stretch.start, stretch.end - stretch.start));
    }
    [[nodiscard]] std::vector<TextRun> runs(Stretch) const override { return {look_}; }

private:
    std::u16string_view text_;
    const TextRun& look_;
};

/// What long text takes without being set; more than there is room for is set as far as it goes.
Size sizeOf(std::u16string_view text, const TextRun& look, const TextFrame& frame) {
    if (text.size() > TextFlow::exactLength && frame.maximumLines == 0) {
        const OneLook source(text, look);
        TextFlow flow(source);
        flow.setWidth(frame.width);
        const Size size = flow.size();
        if (size.height <= frame.height) {
            return size;
        }
    }
    return TextLayout(text, look, frame).size();
}

CGRect boundingRect(ns::String text, CGSize room, ui::StringDrawingOptions options,
                    ns::Dictionary attributes, objc::Object) {
    constexpr double standardSize = 12; // where the attributes name no font
    TextRun plain;
    plain.font = UIFont::valueOf(ui::Font::system(standardSize));
    TextFrame frame;
    frame.lineBreakMode = LineBreakMode::wordWrapping;
    if (objc::haveAny(options, ui::StringDrawingOptions::usesLineFragmentOrigin)) {
        frame.width = room.width;
        frame.height = room.height;
    } else {
        frame.maximumLines = 1;
    }
    const Size size = sizeOf(measured(text), lookOf(attributes, plain), frame);
    return {{}, {size.width, size.height}};
}

} // namespace

void installStringDrawing() {
    objc::install(objc::addition<"NSString", "boundingRectWithSize:options:attributes:context:",
                                 &boundingRect>());
}

} // namespace desktop
