// Between the server's thread and the main thread, and the answers to what pages ask for.
#include "desktop/viewer/phone.hpp"

#include "desktop/host/app.hpp"
#include "desktop/host/automation.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/runtime/stop_request.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/keyboard/keyboard_input.hpp"
#include "desktop/uikit/scrolling/wheel.hpp"
#include "desktop/uikit/uikit.hpp"
#include "desktop/uikit/values/image.hpp"
#include "desktop/viewer/phone_settings.hpp"
#include "desktop/viewer/web_pages.hpp"
#include "desktop/viewer/welcome.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace desktop::viewer {
namespace {

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
        return noSuchFile();
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

/// Keys are pressed by requests, between which texts are typed: they keep their order. Fingers need
/// not wait.
template <class Message>
constexpr bool takesTurns = std::is_same_v<Message, Ask> || std::is_same_v<Message, Insert> ||
                            std::is_same_v<Message, Compose> || std::is_same_v<Message, Press>;

} // namespace

Phone::Phone(const Door& door, Start start, std::filesystem::path deviceFolder,
             host::Values& values)
    : start_(std::move(start)), deviceFolder_(std::move(deviceFolder)), session_{values},
      self_(std::make_shared<Phone*>(this)),
      events_(values,
              [this](const host::Json& event) {
                  tellAll({{"type", "events"}, {"events", host::Json::array({event})}});
              }),
      server_(door.socket, door.token, listener()) {}

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

ServerListener Phone::listener() {
    ServerListener told;
    told.opened = later<PageNumber>(&Phone::opened);
    told.said = later<PageNumber, std::string>(&Phone::said);
    told.closed = later<PageNumber>(&Phone::closed);
    told.fetched = later<FetchNumber, std::string>(&Phone::fetched);
    return told;
}

void Phone::opened(PageNumber page) {
    Watcher& watcher = watchers_.try_emplace(page, page, server_, events_).first->second;
    if (holder_ == 0) {
        holder_ = page;
    }
    watcher.tell(welcome(page));
    watcher.tell({{"type", "events"}, {"events", events_.events()}});
}

void Phone::said(PageNumber page, const std::string& text) {
    bool waitsForItsTurn = false;
    if (const auto watcher = watchers_.find(page); watcher != watchers_.end()) {
        try {
            const PageMessage message = parsePageMessage(text);
            std::visit([&](const auto& each) { take(watcher->second, page, each); }, message);
            waitsForItsTurn = std::visit(
                [](const auto& each) { return takesTurns<std::decay_t<decltype(each)>>; }, message);
        } catch (const MessageError& error) {
            watcher->second.tell({{"type", "refused"}, {"why", error.what()}});
        }
    }
    if (!waitsForItsTurn) {
        server_.handled(page);
    }
}

void Phone::closed(PageNumber page) {
    watchers_.erase(page);
    if (page == holder_) {
        giveHand(watchers_.empty() ? 0 : watchers_.begin()->first);
    }
}

void Phone::giveHand(PageNumber page) {
    hand_.leave();
    holder_ = page;
    for (auto& [number, watcher] : watchers_) {
        watcher.tell({{"type", "hand"}, {"hand", number == holder_}});
    }
}

template <class Message>
void Phone::take(Watcher& watcher, PageNumber page, const Message& message) {
    if constexpr (std::is_same_v<Message, Look>) {
        watcher.look(message.scale);
    } else if constexpr (std::is_same_v<Message, Seen>) {
        watcher.seen(message.picture);
    } else if constexpr (std::is_same_v<Message, TakeHand>) {
        giveHand(page);
    } else if (page != holder_) {
        throw MessageError("another page has the phone in hand");
    } else if constexpr (takesTurns<Message>) {
        turns_.add([this, page, message] {
            server_.handled(page);
            if (watchers_.contains(page)) { // it may have left meanwhile
                carryOut(page, message);
            }
        });
    } else {
        carryOut(message);
    }
}

void Phone::fetched(FetchNumber fetch, const std::string& path) {
    if (server_.isAwaited(fetch)) {
        server_.answer(fetch, contentAt(path));
    }
}

Answer Phone::contentAt(const std::string& path) const {
    constexpr std::string_view files = "file/";
    constexpr std::string_view web = "web/";
    if (path == "screenshot.png") {
        return screenshot();
    }
    if (path == "pasteboard.png") {
        return pasteboardPicture();
    }
    if (path.starts_with(web)) {
        return webPageAt(path.substr(web.size()));
    }
    return contentOf(path.starts_with(files) ? events_.fileOf(path.substr(files.size())) : "");
}

host::Json Phone::welcome(PageNumber page) const {
    host::Json message = welcomeMessage("welcome", start_, deviceFolder_);
    message["screen"] = screenShape();
    message["hand"] = page == holder_;
    return message;
}

void Phone::tellAll(const host::Json& message) {
    for (auto& [page, watcher] : watchers_) {
        watcher.tell(message);
    }
}

void Phone::carryOut(const Fingers& fingers) { hand_.touch(fingers); }

void Phone::carryOut(const Wheel& wheel) {
    uikit::layoutWindows();
    turnWheel({wheel.x, wheel.y}, {wheel.byX, wheel.byY});
}

void Phone::carryOut(PageNumber, const Insert& insert) {
    keyboard_input::insertText(ns::String::fromUtf8(insert.text));
}

void Phone::carryOut(PageNumber, const Compose& compose) {
    const auto text = ns::String::fromUtf8(compose.text);
    keyboard_input::setMarkedText(text, {text.length(), 0});
}

void Phone::carryOut(PageNumber, const Press& press) {
    if (press.key == Key::deleteBackward) {
        keyboard_input::erase();
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

void Phone::carryOut(PageNumber page, const Ask& ask) {
    const std::string response = host::answer(session_, ask.request);
    server_.send(page, R"({"type":"answer","response":)" + response + "}");
    if (session_.quits) {
        stop_request::make();
    }
}

void Phone::carryOut(const Launch& launch) { startInstead(start_, launch, presentSettings()); }

void startInstead(const Start& start, const Launch& launch, const std::string& settings) {
    if (host::appNamed(launch.application) == nullptr) {
        throw MessageError("unknown application: " + launch.application);
    }
    nameSuccessor(start, launch.application, settings);
    stop_request::make();
}

} // namespace desktop::viewer
