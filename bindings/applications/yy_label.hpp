// YYLabel: a label class that some applications bring.
#pragma once

#include "bindings/uikit/font.hpp"
#include "bindings/uikit/view.hpp"

namespace apps {

/// A handle of any YYLabel, an application's own or one that stands in for it.
struct YYLabel : objc::Kind<YYLabel, "YYLabel", ui::View> {
    using Kind::Kind;

    static YYLabel withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    void setText(ns::String text) const { send<"setText:">(text); }
    [[nodiscard]] ui::Font font() const { return send<"font", ui::Font>(); }
    void setFont(ui::Font font) const { send<"setFont:">(font); }
    void setTextColor(ui::Color color) const { send<"setTextColor:">(color); }
    /// 0: as many as it takes.
    void setNumberOfLines(long lines) const {
        send<"setNumberOfLines:">(static_cast<unsigned long>(lines));
    }
};

} // namespace apps
