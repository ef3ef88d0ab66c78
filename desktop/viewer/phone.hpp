// The phone's end of the page: fingers, keys and questions come in, pictures and events go out.
#pragma once

#include "desktop/host/commands.hpp"
#include "desktop/viewer/event_feed.hpp"
#include "desktop/viewer/page_hand.hpp"
#include "desktop/viewer/page_message.hpp"
#include "desktop/viewer/server.hpp"
#include "desktop/viewer/supervisor.hpp"
#include "desktop/viewer/turns.hpp"
#include "desktop/viewer/watcher.hpp"

#include <filesystem>
#include <map>

namespace desktop::viewer {

/// Where pages find the phone: a listening socket, and the secret in its address.
struct Door {
    int socket;
    std::string token;
};

/// Serves pages for as long as it lives: all of them show the phone, and one has it in hand.
/// Everything that they ask for happens on the main thread, on which the application's own work
/// runs too.
class Phone {
public:
    Phone(const Door& door, Start start, std::filesystem::path deviceFolder, host::Values& values);
    Phone(const Phone&) = delete;
    Phone& operator=(const Phone&) = delete;

private:
    /// The method, called on the main thread as long as there is a phone.
    template <class... Arguments, class Method>
    std::function<void(Arguments...)> later(Method method);
    ServerListener listener();

    void opened(PageNumber page);
    void said(PageNumber page, const std::string& text);
    void closed(PageNumber page);
    void fetched(FetchNumber fetch, const std::string& path);

    /// From now on that page has the phone in hand, or none (0).
    void giveHand(PageNumber page);
    /// Carries the message out if the page may send it; throws MessageError if it may not.
    template <class Message>
    void take(Watcher& watcher, PageNumber page, const Message& message);
    void carryOut(const Fingers& fingers);
    static void carryOut(const Wheel& wheel);
    void carryOut(const Paste& paste);
    void carryOut(const Launch& launch);
    // What takes turns.
    static void carryOut(PageNumber page, const Insert& insert);
    static void carryOut(PageNumber page, const Compose& compose);
    static void carryOut(PageNumber page, const Press& press);
    void carryOut(PageNumber page, const Ask& ask);
    void tellAll(const host::Json& message);
    [[nodiscard]] host::Json welcome(PageNumber page) const;
    [[nodiscard]] Answer contentAt(const std::string& path) const;

    Start start_;
    std::filesystem::path deviceFolder_;
    host::Session session_;
    PageNumber holder_ = 0; ///< the page that has the phone in hand; 0: none
    PageHand hand_;
    Turns turns_;
    /// What is queued on the main thread must not outlive the phone.
    std::shared_ptr<Phone*> self_;
    EventFeed events_;
    Server server_;
    std::map<PageNumber, Watcher> watchers_; // their pictures are delivered to the server
};

/// Ends this process in favour of one that runs the application with these settings. Throws
/// MessageError when there is no application of that name.
void startInstead(const Start& start, const Launch& launch, const std::string& settings);

} // namespace desktop::viewer
