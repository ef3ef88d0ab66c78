// Between the server's thread and the main thread, and the answers to what pages ask for.
#include "desktop/viewer/phone.hpp"

#include "desktop/host/app.hpp"
#include "desktop/host/automation.hpp"
#include "desktop/host/main_loop.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/replaykit/film_view.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/keyboard/keyboard_input.hpp"
#include "desktop/uikit/scrolling/wheel.hpp"
#include "desktop/uikit/uikit.hpp"
#include "desktop/uikit/values/image.hpp"
#include "desktop/webkit/web_content.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace desktop::viewer {
namespace {

constexpr unsigned notFound = 404;

std::string serialised(const host::Json& message) {
    return message.dump(-1, ' ', false, host::Json::error_handler_t::replace);
}

/// Told by what a browser can show or play; everything else is only downloaded.
const char* typeOf(const std::filesystem::path& file) {
    constexpr std::array<std::pair<std::string_view, const char*>, 5> types{
        {{".png", "image/png"},
         {".jpg", "image/jpeg"},
         {".wav", "audio/wav"},
         {".mp4", "video/mp4"},
         {".webm", "video/webm"}}};
    const std::string suffix = file.extension();
    const auto* found =
        std::ranges::find(types, suffix, &std::pair<std::string_view, const char*>::first);
    return found == types.end() ? "application/octet-stream" : found->second;
}

Answer contentOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    if (file.empty() || !stream) {
        return {notFound, "text/plain", "there is no such file\n"};
    }
    return {200, typeOf(file), {std::istreambuf_iterator(stream), {}}};
}

Answer content(const Image& image) {
    const auto png = image.png();
    return {200, "image/png", {reinterpret_cast<const char*>(png.data()), png.size()}};
}

Answer screenshot() {
    ScreenImage image(ScreenGeometry::current().scale);
    image.refresh();
    return content(image.snapshot());
}

Answer pasteboardPicture() {
    constexpr unsigned noContent = 204;
    const Image* image = UIImage::valueOf(ui::Pasteboard::generalPasteboard().image());
    return image != nullptr ? content(*image) : Answer{noContent, "image/png", ""};
}

/// In points, as the phone is held, with the pixels a point.
host::Json screenSize() {
    const ScreenGeometry& screen = ScreenGeometry::current();
    return {{"width", screen.size.width}, {"height", screen.size.height}, {"scale", screen.scale}};
}

/// Whether the middle of the view is to be seen and touched.
bool isInFront(ui::View view, const CGRect& frame) {
    const CGPoint middle{frame.origin.x + frame.size.width / 2,
                         frame.origin.y + frame.size.height / 2};
    return view.window().hitTest(middle, nullptr).isDescendantOf(view);
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

Phone::Phone(const Door& door, Start start, std::filesystem::path deviceFolder,
             host::Values& values)
    : start_(std::move(start)), deviceFolder_(std::move(deviceFolder)), session_{values},
      self_(std::make_shared<Phone*>(this)),
      events_(values,
              [this](const host::Json& event) {
                  send({{"type", "events"}, {"events", host::Json::array({event})}});
              }),
      server_(door.socket, door.token,
              {later<PageNumber>(&Phone::opened), later<PageNumber, std::string>(&Phone::said),
               later<PageNumber>(&Phone::closed),
               later<FetchNumber, std::string>(&Phone::fetched)}) {}

Phone::~Phone() { picture_.reset(); }

template <class... Arguments, class Method>
std::function<void(Arguments...)> Phone::later(Method method) {
    return [weak = std::weak_ptr(self_), method](Arguments... arguments) {
        MainQueue::shared().add([weak, method, ... given = std::move(arguments)] {
            if (const auto self = weak.lock()) {
                const objc::Pool pool;
                ((*self)->*method)(given...);
            }
        });
    };
}

void Phone::opened(PageNumber page) {
    page_ = page;
    webPages_ = nullptr;
    films_ = nullptr;
    screen_ = screenSize();
    send(welcome());
    send({{"type", "events"}, {"events", events_.events()}});
}

void Phone::said(PageNumber page, const std::string& text) {
    if (page == page_) {
        try {
            std::visit([this](const auto& message) { carryOut(message); }, parsePageMessage(text));
        } catch (const MessageError& error) {
            send({{"type", "refused"}, {"why", error.what()}});
        }
    }
    server_.handled(page);
}

void Phone::closed(PageNumber page) {
    if (page == page_) {
        page_ = 0;
        picture_.reset();
        hand_.leave();
    }
}

void Phone::fetched(FetchNumber fetch, const std::string& path) {
    server_.answer(fetch, contentAt(path));
}

Answer Phone::contentAt(const std::string& path) const {
    constexpr std::string_view files = "file/";
    if (path == "screenshot.png") {
        return screenshot();
    }
    if (path == "pasteboard.png") {
        return pasteboardPicture();
    }
    return contentOf(path.starts_with(files) ? events_.fileOf(path.substr(files.size())) : "");
}

host::Json Phone::welcome() const {
    host::Json applications = host::Json::array();
    for (const host::App* app : host::apps()) {
        applications.push_back({{"name", app->name}, {"bundle", app->bundleIdentifier}});
    }
    return {{"type", "welcome"},
            {"version", WENTRA_VERSION},
            {"application", start_.application},
            {"applications", applications},
            {"afterCrash", start_.afterCrash},
            {"folder", deviceFolder_.string()},
            {"screen", screenSize()}};
}

void Phone::send(const host::Json& message) { server_.send(page_, serialised(message)); }

void Phone::tellScreen() {
    if (host::Json screen = screenSize(); screen != screen_) {
        screen_ = std::move(screen);
        send({{"type", "screen"}, {"screen", screen_}});
    }
}

void Phone::tellWebPages() {
    if (host::Json pages = webPages(); pages != webPages_) {
        webPages_ = std::move(pages);
        send({{"type", "webPages"}, {"pages", webPages_}});
    }
}

void Phone::tellFilms() {
    if (host::Json shown = films(events_); shown != films_) {
        films_ = std::move(shown);
        send({{"type", "films"}, {"films", films_}});
    }
}

void Phone::carryOut(const Fingers& fingers) { hand_.touch(fingers); }

void Phone::carryOut(const Look& look) {
    picture_.reset();
    picture_.emplace(
        look.scale, [this, page = page_](Bytes frame) { server_.send(page, std::move(frame)); },
        [this] {
            tellScreen();
            tellWebPages();
            tellFilms();
        });
}

void Phone::carryOut(const Seen& seen) {
    if (picture_) {
        picture_->seen(seen.picture);
    }
}

void Phone::carryOut(const Wheel& wheel) {
    uikit::layoutWindows();
    turnWheel({wheel.x, wheel.y}, {wheel.byX, wheel.byY});
}

void Phone::carryOut(const Insert& insert) {
    keyboard_input::insertText(ns::String::fromUtf8(insert.text));
}

void Phone::carryOut(const Compose& compose) {
    const auto text = ns::String::fromUtf8(compose.text);
    keyboard_input::setMarkedText(text, {text.length(), 0});
}

void Phone::carryOut(const Press& press) {
    if (press.key == Key::deleteBackward) {
        keyboard_input::deleteBackward();
    } else {
        keyboard_input::pressReturn();
    }
}

void Phone::carryOut(const Paste& paste) {
    // Pictures are read from files, as everywhere on the phone.
    const std::string file = deviceFolder_ / "pasted-picture";
    const auto bytes = ns::Data::fromBase64(ns::String::fromUtf8(paste.picture));
    const bool written = bytes && !bytes.writeToFile(ns::String::fromUtf8(file));
    const auto picture = ui::Image::withContentsOfFile(ns::String::fromUtf8(file));
    std::remove(file.c_str());
    if (!written || !picture) {
        throw MessageError("this is no picture");
    }
    ui::Pasteboard::generalPasteboard().setImage(picture);
}

void Phone::carryOut(const Ask& ask) {
    const std::string response = host::answer(session_, ask.request);
    server_.send(page_, R"({"type":"answer","response":)" + response + "}");
    if (session_.quits) {
        host::stop();
    }
}

void Phone::carryOut(const Launch& launch) {
    if (host::appNamed(launch.application) == nullptr) {
        throw MessageError("unknown application: " + launch.application);
    }
    nameSuccessor(start_, launch.application);
    host::stop();
}

} // namespace desktop::viewer
