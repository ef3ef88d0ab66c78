// YYLabel: a label class that some applications bring; ours stands in where they do not.
#pragma once

#include "bindings/uikit/font.hpp"
#include "bindings/uikit/view.hpp"

namespace wentra::labels {

/// A handle of any YYLabel, the application's own or ours.
struct YYLabel : objc::Kind<YYLabel, "YYLabel", ui::View> {
    using Kind::Kind;

    [[nodiscard]] ns::String text() const { return send<"text", ns::String>(); }
    [[nodiscard]] ui::Font font() const { return send<"font", ui::Font>(); }
    void setFont(ui::Font font) const { send<"setFont:">(font); }
    void setTextColor(ui::Color color) const { send<"setTextColor:">(color); }
};

/// Declares our own `YYLabel`, a view with a font and a text colour, so that the name resolves in
/// every process. An application's class of that name stays as it is.
void registerYYLabel();

} // namespace wentra::labels
