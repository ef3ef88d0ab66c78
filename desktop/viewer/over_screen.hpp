// What a page is to lay over the screen, since the phone only knows where it stands.
#pragma once

#include "desktop/host/json.hpp"
#include "desktop/viewer/event_feed.hpp"

namespace desktop::viewer {

/// The web pages in front of everything else: the numbers of "view" and "load" (web_content.hpp),
/// the "address" (its beginning, when it is very long), the "site" that a browser may load it from,
/// the "appearance" of the phone, and the "frame". Main thread.
[[nodiscard]] host::Json webPages();

/// The films in front of everything else, each by the number of the event that carries its file.
/// Main thread.
[[nodiscard]] host::Json films(const EventFeed& events);

} // namespace desktop::viewer
