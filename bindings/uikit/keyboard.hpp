// The on-screen keyboard: what tells of it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/value.hpp"

namespace ui::keyboard {

using namespace ns::literals;

/// The names of the notifications.
inline ns::String willShow() { return u"UIKeyboardWillShowNotification"_ns; }
inline ns::String willHide() { return u"UIKeyboardWillHideNotification"_ns; }

/// Where the keyboard will be, in the screen's coordinates; empty when the notification does not
/// say.
inline CGRect frameEnd(ns::Notification notification) {
    return notification.userInfo()
        .get(u"UIKeyboardFrameEndUserInfoKey"_ns)
        .assume<ns::Value>()
        .cgRectValue();
}

} // namespace ui::keyboard
