// Waiting for somebody to start an application.
#include "desktop/viewer/resting_phone.hpp"

#include "desktop/host/main_loop.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/viewer/welcome.hpp"

namespace desktop::viewer {
namespace {

/// On the main thread, whose queue nobody runs any more once the phone is gone.
void later(std::function<void()> work) { MainQueue::shared().add(std::move(work)); }

} // namespace

RestingPhone::RestingPhone(const Door& door, Start start, std::filesystem::path deviceFolder)
    : start_(std::move(start)), deviceFolder_(std::move(deviceFolder)),
      server_(door.socket, door.token,
              {[this](PageNumber page) { later([=, this] { opened(page); }); },
               [this](PageNumber page, const std::string& text) {
                   later([=, this] { said(page, text); });
               },
               [](PageNumber) {},
               [this](FetchNumber fetch, const std::string&) {
                   later([=, this] { server_.answer(fetch, noSuchFile()); });
               }}) {}

void RestingPhone::opened(PageNumber page) {
    server_.send(page, welcomeMessage("resting", start_, deviceFolder_).dump());
}

void RestingPhone::said(PageNumber page, const std::string& text) {
    try {
        const PageMessage message = parsePageMessage(text);
        if (const auto* launch = std::get_if<Launch>(&message); launch != nullptr) {
            startInstead(start_, *launch, start_.settings);
        }
    } catch (const MessageError&) { // there is nothing else to do for a page
    }
    server_.handled(page);
}

} // namespace desktop::viewer
