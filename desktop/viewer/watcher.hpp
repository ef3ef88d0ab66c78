// One of the pages that show the phone: its picture, and what it has been told.
#pragma once

#include "desktop/host/json.hpp"
#include "desktop/viewer/event_feed.hpp"
#include "desktop/viewer/picture.hpp"
#include "desktop/viewer/server.hpp"

#include <optional>

namespace desktop::viewer {

/// The screen as the phone is held, in points, with the pixels a point; and what is around it.
[[nodiscard]] host::Json screenShape();

/// Main thread.
class Watcher {
public:
    Watcher(PageNumber page, Server& server, const EventFeed& events)
        : page_(page), server_(server), events_(events), screen_(screenShape()) {}

    void tell(const host::Json& message);
    /// From now on it gets pictures with that many pixels a point.
    void look(double scale);
    /// It has drawn that picture and those before it.
    void seen(std::uint32_t picture);

private:
    void drawn();
    void tellIfNew(const char* type, const char* name, host::Json value, host::Json& told);

    PageNumber page_;
    Server& server_;
    const EventFeed& events_;
    host::Json screen_;   ///< as the page was told last
    host::Json webPages_; ///< likewise
    host::Json films_;    ///< likewise
    std::optional<Picture> picture_;
};

} // namespace desktop::viewer
