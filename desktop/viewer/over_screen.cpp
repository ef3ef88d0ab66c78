// Looking for the views that a page lays something over.
#include "desktop/viewer/over_screen.hpp"

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/replaykit/film_view.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/uikit.hpp"
#include "desktop/viewer/page_address.hpp"
#include "desktop/webkit/web_content.hpp"

namespace desktop::viewer {
namespace {

/// Whether the middle of the view is to be seen and touched.
bool isInFront(ui::View view, const CGRect& frame) {
    const CGPoint middle{frame.origin.x + frame.size.width / 2,
                         frame.origin.y + frame.size.height / 2};
    return Foreground::shared().hasApplication() &&
           view.window().hitTest(middle, nullptr).isDescendantOf(view);
}

host::Json listOf(const CGRect& frame) {
    return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}

} // namespace

host::Json webPages() {
    const bool isDark = uikit::appearance() == uikit::Appearance::dark;
    host::Json pages = host::Json::array();
    for (const LiveWebPage& each : liveWebPages()) {
        if (isInFront(each.view, each.frame)) {
            pages.push_back({{"view", each.number},
                             {"load", each.load},
                             {"address", beginningOf(each.address, longestAddress)},
                             {"site", readPageAddress(each.address).site},
                             {"appearance", isDark ? "dark" : "light"},
                             {"frame", listOf(each.frame)}});
        }
    }
    return pages;
}

host::Json films(const EventFeed& events) {
    host::Json shown = host::Json::array();
    for (const LiveFilm& each : liveFilms()) {
        const std::uint64_t number = events.numberOf(each.file);
        if (number > 0 && isInFront(each.view, each.frame)) {
            shown.push_back({{"event", number}, {"frame", listOf(each.frame)}});
        }
    }
    return shown;
}

} // namespace desktop::viewer
