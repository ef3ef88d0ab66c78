// What a page is told of the screen, whenever it has been drawn.
#include "desktop/viewer/watcher.hpp"

#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/uikit.hpp"
#include "desktop/viewer/over_screen.hpp"

namespace desktop::viewer {

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
