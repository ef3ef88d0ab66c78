// UILabel.
#pragma once

#include "bindings/uikit/font.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

/// How text is set between the edges; the platform's numbers.
enum class TextAlignment : long { left = 0, center = 1, right = 2, justified = 3, natural = 4 };

/// Where lines end that do not fit; the platform's numbers.
enum class LineBreakMode : long {
    wordWrapping = 0,
    charWrapping = 1,
    clipping = 2,
    truncatingHead = 3,
    truncatingTail = 4,
    truncatingMiddle = 5,
};

/// Where text stands whose size was adjusted; the platform's numbers.
enum class BaselineAdjustment : long { alignBaselines = 0, alignCenters = 1, none = 2 };

struct Label : objc::Kind<Label, "UILabel", View> {
    using Kind::Kind;

    static Label withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] ns::String text() const { return send<"text", ns::String>(); }
    void setText(ns::String text) const { send<"setText:">(text); }
    [[nodiscard]] Font font() const { return send<"font", Font>(); }
    void setFont(Font font) const { send<"setFont:">(font); }
    [[nodiscard]] Color textColor() const { return send<"textColor", Color>(); }
    void setTextColor(Color color) const { send<"setTextColor:">(color); }
    void setTextAlignment(TextAlignment alignment) const { send<"setTextAlignment:">(alignment); }
    void setBaselineAdjustment(BaselineAdjustment adjustment) const {
        send<"setBaselineAdjustment:">(adjustment);
    }
    /// 0: as many as it takes.
    void setNumberOfLines(long lines) const { send<"setNumberOfLines:">(lines); }
    void setLineBreakMode(LineBreakMode mode) const { send<"setLineBreakMode:">(mode); }
    /// Text that is too wide is set smaller, down to the minimum scale.
    void setAdjustsFontSizeToFitWidth(bool adjusts) const {
        send<"setAdjustsFontSizeToFitWidth:">(adjusts);
    }
    void setMinimumScaleFactor(double factor) const { send<"setMinimumScaleFactor:">(factor); }
};

} // namespace ui
