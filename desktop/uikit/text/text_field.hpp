// UITextField: one line of text that can be edited.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/text_field.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/text/text_input.hpp"

namespace desktop {

class TextField : public PlatformClass<TextField, ui::TextField>, public TextInput {
public:
    using Peer::border;
    using Peer::of;
    static std::vector<objc::MethodRow> methods();

    TextField() { setSingleLine(); }

    [[nodiscard]] bool isEditable() const override { return true; }
    void pressReturn() override;

private:
    ui::TextField initWithFrame(CGRect frame);
    [[nodiscard]] ns::AttributedString attributedPlaceholder() const;
    void setAttributedPlaceholder(ns::AttributedString text);
    [[nodiscard]] bool canBecomeFirstResponder() const { return self().isEnabled(); }
    [[nodiscard]] bool isEditing() const { return self().isFirstResponder(); }
    void setSideView(objc::Strong<ui::View>& side, ui::View view);
    [[nodiscard]] ui::View leftView() const { return leftView_; }
    void setLeftView(ui::View view) { setSideView(leftView_, view); }
    [[nodiscard]] ui::View rightView() const { return rightView_; }
    void setRightView(ui::View view) { setSideView(rightView_, view); }
    /// Whether something is shown that has this mode: never, while editing, unless editing, always.
    [[nodiscard]] bool shows(long mode) const;
    [[nodiscard]] bool showsClearButton() const;
    [[nodiscard]] CGRect textRect(CGRect bounds) const;
    [[nodiscard]] CGRect editingRect(CGRect bounds) const;
    [[nodiscard]] CGRect placeholderRect(CGRect bounds) const;
    [[nodiscard]] CGRect clearButtonRect(CGRect bounds) const;
    [[nodiscard]] CGRect leftViewRect(CGRect bounds) const;
    [[nodiscard]] CGRect rightViewRect(CGRect bounds) const;
    void clear();
    void redraw();
    void measure();
    void layoutSubviews();
    void drawRect(CGRect dirty);
    void drawLine(std::u16string_view text, const std::vector<TextRun>& runs, CGRect room) const;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] CGSize intrinsicContentSize() const;

    // TextInput
    [[nodiscard]] ui::View view() const override { return self(); }
    [[nodiscard]] CGRect textArea() const override;
    [[nodiscard]] double defaultFontSize() const override;
    [[nodiscard]] bool isSecret() const override { return secret_; }
    [[nodiscard]] ns::String acceptable(ns::String text) const override;
    [[nodiscard]] bool mayChange(ns::Range range, ns::String text) override;
    void tellChange() override;
    void tellSelectionChange() override;
    [[nodiscard]] bool mayBegin() override;
    void tellBegin() override;
    [[nodiscard]] bool mayEnd() override;
    void tellEnd() override;
    void reveal(CGRect caret) override;

    objc::Copied<ns::String> placeholder_;
    objc::Copied<ns::AttributedString> attributedPlaceholder_;
    objc::Strong<ui::Control> clearButton_;
    objc::Strong<ui::View> leftView_;
    objc::Strong<ui::View> rightView_;
    objc::Weak<objc::Object> delegate_;
    ui::TextAlignment alignment_ = ui::TextAlignment::natural;
    long borderStyle_ = 0;
    long clearButtonMode_ = 0;
    long leftViewMode_ = 0;
    long rightViewMode_ = 0;
    bool secret_ = false;
    bool clearsOnBeginEditing_ = false;
    bool shrinksToFit_ = false;
    double minimumFontSize_ = 0;
    /// How far the text is scrolled to the left, in points.
    double scrolled_ = 0;
    /// The text's, as it was last measured.
    double textWidth_ = 0;
};

} // namespace desktop
