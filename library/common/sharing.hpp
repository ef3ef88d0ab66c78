// The system's share sheet.
#pragma once

#include "bindings/uikit/activity_view_controller.hpp"

namespace wentra {

/// Offers one object, a text or a URL for instance, to the system's activities; not presented yet.
[[nodiscard]] ui::ActivityViewController shareSheet(objc::Object item);

/// Offers the text to the system's activities, over the top controller's context. Main thread.
void shareText(ns::String text);
/// The same from that controller, in the platform's own way, and of any object that activities
/// know. Nothing for nil.
void share(objc::Object item, ui::ViewController controller);
/// The same for the file at that path.
void shareFile(ns::String path, ui::ViewController controller);

} // namespace wentra
