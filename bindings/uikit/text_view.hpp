// UITextView.
#pragma once

#include "bindings/uikit/font.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/layout_manager.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/text_storage.hpp"

namespace ui {

/// The name of the notification that a person has edited a text view.
inline ns::String textViewTextDidChange() {
    using namespace ns::literals;
    return u"UITextViewTextDidChangeNotification"_ns;
}

struct TextView : objc::Kind<TextView, "UITextView", ScrollView> {
    using Kind::Kind;

    static TextView withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] ns::String text() const { return send<"text", ns::String>(); }
    void setText(ns::String text) const { send<"setText:">(text); }
    [[nodiscard]] Font font() const { return send<"font", Font>(); }
    void setFont(Font font) const { send<"setFont:">(font); }
    void setTextColor(Color color) const { send<"setTextColor:">(color); }
    [[nodiscard]] ns::AttributedString attributedText() const {
        return send<"attributedText", ns::AttributedString>();
    }
    void setAttributedText(ns::AttributedString text) const { send<"setAttributedText:">(text); }
    /// Edits of it are edits of the view.
    [[nodiscard]] TextStorage textStorage() const { return send<"textStorage", TextStorage>(); }
    [[nodiscard]] TextContainer textContainer() const {
        return send<"textContainer", TextContainer>();
    }
    [[nodiscard]] LayoutManager layoutManager() const {
        return send<"layoutManager", LayoutManager>();
    }
    void setEditable(bool editable) const { send<"setEditable:">(editable); }
    void setSelectable(bool selectable) const { send<"setSelectable:">(selectable); }
    void setTextAlignment(TextAlignment alignment) const { send<"setTextAlignment:">(alignment); }
    /// In UTF-16 units.
    [[nodiscard]] ns::Range selectedRange() const { return send<"selectedRange", ns::Range>(); }
    void setSelectedRange(ns::Range range) const { send<"setSelectedRange:">(range); }
    void scrollRangeToVisible(ns::Range range) const { send<"scrollRangeToVisible:">(range); }
    void setTextContainerInset(UIEdgeInsets insets) const {
        send<"setTextContainerInset:">(insets);
    }
};

} // namespace ui
