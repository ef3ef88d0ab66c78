// Room for the keyboard in what scrolls.
#pragma once

#include "bindings/foundation/notification.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "bindings/uikit/window.hpp"

namespace wentra {

/// From now on the observer is sent `keyboardWillShow:` and `keyboardWillHide:` with the keyboard's
/// notifications. It is not retained: it stops watching before it ends.
void watchKeyboard(objc::Object observer);
void stopWatchingKeyboard(objc::Object observer);

/// Keeps the content and the scroll indicators away from the view's edges, in points.
void setInsets(ui::ScrollView view, const UIEdgeInsets& insets);

/// Insets that keep clear of the window's safe area and the controller's navigation bar above, and
/// below of the keyboard that comes by the notification; of none when it goes.
void keepClear(ui::ScrollView view, ui::Window window, ui::ViewController controller,
               ns::Notification keyboard);

} // namespace wentra
