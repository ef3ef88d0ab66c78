// Text fields: their text, what stands beside it, and their delegate.
#include "desktop/uikit/text/text_field.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "desktop/uikit/controls/clear_button.hpp"
#include "desktop/uikit/delegate_messages.hpp"
#include "desktop/uikit/values/font.hpp"

#include <algorithm>

namespace desktop {

using namespace ns::literals;
using Events = ui::ControlEvents;

std::vector<objc::MethodRow> TextField::methods() {
    std::vector<objc::MethodRow> rows = textInputMethods();
    rows.insert(
        rows.end(),
        {
            objc::method<"initWithFrame:", &TextField::initWithFrame>(),
            objc::property<"placeholder", &TextField::placeholder_, &TextField::redraw>(),
            objc::property<"attributedPlaceholder", &TextField::attributedPlaceholder,
                           &TextField::setAttributedPlaceholder>(),
            objc::property<"textAlignment", &TextField::alignment_, &TextField::redraw>(),
            objc::property<"borderStyle", &TextField::borderStyle_, &TextField::redraw>(),
            objc::property<"clearButtonMode", &TextField::clearButtonMode_, &TextField::redraw>(),
            objc::property<"leftView", &TextField::leftView, &TextField::setLeftView>(),
            objc::property<"leftViewMode", &TextField::leftViewMode_, &TextField::redraw>(),
            objc::property<"rightView", &TextField::rightView, &TextField::setRightView>(),
            objc::property<"rightViewMode", &TextField::rightViewMode_, &TextField::redraw>(),
            objc::flag<"secureTextEntry", &TextField::secret_, &TextField::redraw>(),
            objc::property<"clearsOnBeginEditing", &TextField::clearsOnBeginEditing_>(),
            objc::property<"adjustsFontSizeToFitWidth", &TextField::shrinksToFit_>(),
            objc::property<"minimumFontSize", &TextField::minimumFontSize_>(),
            objc::property<"delegate", &TextField::delegate_>(),
            objc::method<"isEditing", &TextField::isEditing>(),
            objc::method<"canBecomeFirstResponder", &TextField::canBecomeFirstResponder>(),
            objc::method<"textRectForBounds:", &TextField::textRect>(),
            objc::method<"editingRectForBounds:", &TextField::editingRect>(),
            objc::method<"placeholderRectForBounds:", &TextField::placeholderRect>(),
            objc::method<"clearButtonRectForBounds:", &TextField::clearButtonRect>(),
            objc::method<"leftViewRectForBounds:", &TextField::leftViewRect>(),
            objc::method<"rightViewRectForBounds:", &TextField::rightViewRect>(),
            objc::method<"_clear", &TextField::clear>(),
            objc::method<"layoutSubviews", &TextField::layoutSubviews>(),
            objc::method<"drawRect:", &TextField::drawRect>(),
            objc::method<"sizeThatFits:", &TextField::sizeThatFits>(),
            objc::method<"intrinsicContentSize", &TextField::intrinsicContentSize>(),
        });
    return rows;
}

ui::TextField TextField::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    setFont(nullptr);
    setTextColor(nullptr);
    clearButton_ = ClearButtonKind::make<"initWithFrame:">(CGRect());
    clearButton_.addTarget(self(), objc::selector<"_clear">(), Events::touchUpInside);
    clearButton_.setHidden(true);
    self().addSubview(clearButton_);
    self().setClipsToBounds(true);
    addRecognizers();
    return self();
}

ns::AttributedString TextField::attributedPlaceholder() const { return attributedPlaceholder_; }

void TextField::setAttributedPlaceholder(ns::AttributedString text) {
    attributedPlaceholder_ = text;
    placeholder_ = text.string();
    redraw();
}

double TextField::defaultFontSize() const { return UIFont::defaultSize; }

void TextField::redraw() {
    resetFlow();
    self().setNeedsLayout();
    self().setNeedsDisplay();
}

/// A text field has no line breaks.
ns::String TextField::acceptable(ns::String text) const {
    const auto lines = text.send<"componentsSeparatedByString:", ns::Array>(u"\n"_ns);
    return lines.count() > 1 ? lines.componentsJoined(u" "_ns) : text;
}

void TextField::pressReturn() {
    const objc::Strong<ui::TextField> kept = self();
    if (!allows<"textFieldShouldReturn:">(delegate_, self())) {
        return;
    }
    self().sendActions(Events::editingDidEndOnExit);
}

void TextField::clear() {
    if (!allows<"textFieldShouldClear:">(delegate_, self())) {
        return;
    }
    setText(nullptr);
    tellChange();
}

bool TextField::mayChange(ns::Range range, ns::String text) {
    return allows<"textField:shouldChangeCharactersInRange:replacementString:">(delegate_, self(),
                                                                                range, text);
}

void TextField::tellChange() {
    const objc::Strong<ui::TextField> kept = self();
    self().setNeedsLayout();
    ns::NotificationCenter::defaultCenter().post(u"UITextFieldTextDidChangeNotification"_ns, kept);
    kept.sendActions(Events::editingChanged);
}

void TextField::tellSelectionChange() { tell<"textFieldDidChangeSelection:">(delegate_, self()); }

bool TextField::mayBegin() { return allows<"textFieldShouldBeginEditing:">(delegate_, self()); }

void TextField::tellBegin() {
    const objc::Strong<ui::TextField> kept = self();
    if (clearsOnBeginEditing_) {
        clear();
    }
    redraw();
    tell<"textFieldDidBeginEditing:">(delegate_, kept);
    kept.sendActions(Events::editingDidBegin);
    ns::NotificationCenter::defaultCenter().post(u"UITextFieldTextDidBeginEditingNotification"_ns,
                                                 kept);
}

bool TextField::mayEnd() { return allows<"textFieldShouldEndEditing:">(delegate_, self()); }

void TextField::tellEnd() {
    const objc::Strong<ui::TextField> kept = self();
    redraw();
    constexpr auto withReason = &objc::selector<"textFieldDidEndEditing:reason:">;
    if (const auto told = delegate_.strong(); told.respondsToSelector(withReason())) {
        constexpr long committed = 0;
        told.send<"textFieldDidEndEditing:reason:">(kept.raw(), committed);
    } else {
        tell<"textFieldDidEndEditing:">(told, kept);
    }
    kept.sendActions(Events::editingDidEnd);
    ns::NotificationCenter::defaultCenter().post(u"UITextFieldTextDidEndEditingNotification"_ns,
                                                 kept);
}

} // namespace desktop
