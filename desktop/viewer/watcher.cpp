// What a page is told of the screen, whenever it has been drawn.
#include "desktop/viewer/watcher.hpp"

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/replaykit/film_view.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/uikit.hpp"
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

/// The web pages in front of everything else, for the page to show what is in them.
host::Json webPages() {
    host::Json pages = host::Json::array();
    for (const LiveWebPage& each : liveWebPages()) {
        if (isInFront(each.view, each.frame)) {
            pages.push_back({{"address", each.address}, {"frame", listOf(each.frame)}});
        }
    }
    return pages;
}

/// The films in front of everything else, for the page to play them, each by the number of the
/// event that carries its file.
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

} // namespace

host::Json screenShape() {
    const ScreenGeometry& screen = ScreenGeometry::current();
    return {{"width", screen.size.width},
            {"height", screen.size.height},
            {"scale", screen.scale},
            {"orientation", uikit::orientation()},
            {"device", screen.device.name},
            {"front", nameOf(screen.device.front)},
            {"corner", screen.device.corner},
            {"home", Foreground::shared().isHomeScreenShown()},
            {"locked", Foreground::shared().isLocked()}};
}

void Watcher::tell(const host::Json& message) {
    server_.send(page_, message.dump(-1, ' ', false, host::Json::error_handler_t::replace));
}

void Watcher::look(double scale) {
    picture_.reset();
    picture_.emplace(
        scale,
        [server = &server_, page = page_](Bytes frame) { server->send(page, std::move(frame)); },
        [this] { drawn(); });
}

void Watcher::seen(std::uint32_t picture) {
    if (picture_) {
        picture_->seen(picture);
    }
}

void Watcher::drawn() {
    tellIfNew("screen", "screen", screenShape(), screen_);
    tellIfNew("webPages", "pages", webPages(), webPages_);
    tellIfNew("films", "films", films(events_), films_);
}

void Watcher::tellIfNew(const char* type, const char* name, host::Json value, host::Json& told) {
    if (value != told) {
        told = std::move(value);
        tell({{"type", type}, {name, told}});
    }
}

} // namespace desktop::viewer
