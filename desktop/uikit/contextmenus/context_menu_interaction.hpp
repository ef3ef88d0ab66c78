// UIContextMenuInteraction: a menu that a long press on a view brings up.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/context_menu_interaction.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class ContextMenuInteraction
    : public PlatformClass<ContextMenuInteraction, ui::ContextMenuInteraction> {
public:
    static std::vector<objc::MethodRow> methods();

    /// Asks the delegate and brings the menu up, for a press at the point of the view. False when
    /// there is no menu for it.
    bool show(CGPoint place);

private:
    ui::ContextMenuInteraction initWithDelegate(objc::Object delegate);
    [[nodiscard]] objc::Object delegate() const { return delegate_; }
    [[nodiscard]] ui::View view() const { return view_; }
    void willMoveToView(ui::View view);
    void didMoveToView(ui::View view);
    void pressed(ui::GestureRecognizer press);
    [[nodiscard]] bool comesFirst(ui::GestureRecognizer own, ui::GestureRecognizer other) const;

    objc::Weak<objc::Object> delegate_;
    objc::Weak<ui::View> view_;
    objc::Strong<ui::LongPressGestureRecognizer> press_;
};

} // namespace desktop
