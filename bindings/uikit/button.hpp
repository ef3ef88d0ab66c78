// UIButton.
#pragma once

#include "bindings/uikit/control.hpp"
#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/label.hpp"

namespace ui {

/// The platform's numbers.
enum class ButtonType : long { custom = 0, system = 1 };

struct Button : objc::Kind<Button, "UIButton", Control> {
    using Kind::Kind;

    static Button withType(ButtonType type) { return sendClass<"buttonWithType:", Button>(type); }
    void setTitle(ns::String title, ControlState state) const {
        send<"setTitle:forState:">(title, state);
    }
    /// The title set for that state, or else for the normal one; nil when there is none.
    [[nodiscard]] ns::String titleFor(ControlState state) const {
        return send<"titleForState:", ns::String>(state);
    }
    void setTitleColor(Color color, ControlState state) const {
        send<"setTitleColor:forState:">(color, state);
    }
    void setImage(Image image, ControlState state) const {
        send<"setImage:forState:">(image, state);
    }
    [[nodiscard]] ImageView imageView() const { return send<"imageView", ImageView>(); }
    [[nodiscard]] Label titleLabel() const { return send<"titleLabel", Label>(); }
    void setContentEdgeInsets(UIEdgeInsets insets) const { send<"setContentEdgeInsets:">(insets); }
    void setTitleEdgeInsets(UIEdgeInsets insets) const { send<"setTitleEdgeInsets:">(insets); }
    void setImageEdgeInsets(UIEdgeInsets insets) const { send<"setImageEdgeInsets:">(insets); }
};

} // namespace ui
