// UIPasteboard.
#pragma once

#include "bindings/uikit/image.hpp"

namespace ui {

struct Pasteboard : objc::Kind<Pasteboard, "UIPasteboard"> {
    using Kind::Kind;

    static Pasteboard generalPasteboard() { return sendClass<"generalPasteboard", Pasteboard>(); }
    /// Nil when the pasteboard holds no text.
    [[nodiscard]] ns::String string() const { return send<"string", ns::String>(); }
    /// Posts UIPasteboardChangedNotification; nil empties the pasteboard.
    void setString(ns::String text) const { send<"setString:">(text); }
    [[nodiscard]] Image image() const { return send<"image", Image>(); }
    void setImage(Image image) const { send<"setImage:">(image); }
};

} // namespace ui
