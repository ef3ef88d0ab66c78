// UITextInput: what views that edit text answer to.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/uikit/text_range.hpp"

namespace ui {

/// The platform's numbers.
enum class LayoutDirection : long { right = 2, left = 3, up = 4, down = 5 };

/// Any object with this protocol: text views, text fields, and an application's own.
struct TextInput : objc::Object {
    using Object::Object;
    explicit constexpr TextInput(objc::Object view) : Object(view) {}

    [[nodiscard]] ns::String textIn(TextRange range) const {
        return send<"textInRange:", ns::String>(range);
    }
    void replace(TextRange range, ns::String text) const {
        send<"replaceRange:withText:">(range, text);
    }
    void insertText(ns::String text) const { send<"insertText:">(text); }
    /// Of the system's own commands; the sender may be nil.
    void selectAll(objc::Object sender) const { send<"selectAll:">(sender); }
    void deleteBackward() const { send<"deleteBackward">(); }
    /// Nil without a selection or caret.
    [[nodiscard]] TextRange selectedTextRange() const {
        return send<"selectedTextRange", TextRange>();
    }
    void setSelectedTextRange(TextRange range) const { send<"setSelectedTextRange:">(range); }
    [[nodiscard]] TextPosition beginningOfDocument() const {
        return send<"beginningOfDocument", TextPosition>();
    }
    [[nodiscard]] TextPosition endOfDocument() const {
        return send<"endOfDocument", TextPosition>();
    }
    [[nodiscard]] TextRange range(TextPosition from, TextPosition to) const {
        return send<"textRangeFromPosition:toPosition:", TextRange>(from, to);
    }
    [[nodiscard]] long offset(TextPosition from, TextPosition to) const {
        return send<"offsetFromPosition:toPosition:", long>(from, to);
    }
    /// So many lines or characters away from there; nil when the text ends before that.
    [[nodiscard]] TextPosition position(TextPosition from, LayoutDirection direction,
                                        long offset) const {
        return send<"positionFromPosition:inDirection:offset:", TextPosition>(from, direction,
                                                                              offset);
    }
    [[nodiscard]] TextPosition closestPosition(CGPoint point) const {
        return send<"closestPositionToPoint:", TextPosition>(point);
    }
    [[nodiscard]] CGRect caretRect(TextPosition position) const {
        return send<"caretRectForPosition:", CGRect>(position);
    }
};

} // namespace ui
