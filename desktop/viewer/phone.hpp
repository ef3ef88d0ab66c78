// The phone's end of the page: fingers, keys and questions come in, pictures and events go out.
#pragma once

#include "desktop/host/commands.hpp"
#include "desktop/viewer/event_feed.hpp"
#include "desktop/viewer/page_hand.hpp"
#include "desktop/viewer/page_message.hpp"
#include "desktop/viewer/picture.hpp"
#include "desktop/viewer/server.hpp"
#include "desktop/viewer/supervisor.hpp"

#include <filesystem>
#include <optional>

namespace desktop::viewer {

/// Where pages find the phone: a listening socket, and the secret in its address.
struct Door {
    int socket;
    std::string token;
};

/// Serves pages for as long as it lives. Everything that they ask for happens on the main thread,
/// on which the application's own work runs too.
class Phone {
public:
    Phone(const Door& door, Start start, std::filesystem::path deviceFolder, host::Values& values);
    Phone(const Phone&) = delete;
    Phone& operator=(const Phone&) = delete;
    ~Phone();

private:
    /// The method, called on the main thread as long as there is a phone.
    template <class... Arguments, class Method>
    std::function<void(Arguments...)> later(Method method);

    void opened(PageNumber page);
    void said(PageNumber page, const std::string& text);
    void closed(PageNumber page);
    void fetched(FetchNumber fetch, const std::string& path);

    void carryOut(const Fingers& fingers);
    void carryOut(const Look& look);
    void carryOut(const Seen& seen);
    static void carryOut(const Wheel& wheel);
    static void carryOut(const Insert& insert);
    static void carryOut(const Compose& compose);
    static void carryOut(const Press& press);
    void carryOut(const Paste& paste);
    void carryOut(const Ask& ask);
    void carryOut(const Launch& launch);

    void send(const host::Json& message);
    void tellScreen();
    void tellWebPages();
    void tellFilms();
    [[nodiscard]] host::Json welcome() const;
    [[nodiscard]] Answer contentAt(const std::string& path) const;

    Start start_;
    std::filesystem::path deviceFolder_;
    host::Session session_;
    PageNumber page_ = 0; // 0: none
    PageHand hand_;
    host::Json webPages_; ///< as the page was told last
    host::Json films_;    ///< likewise
    host::Json screen_;   ///< likewise
    /// What is queued on the main thread must not outlive the phone.
    std::shared_ptr<Phone*> self_;
    EventFeed events_;
    Server server_;
    std::optional<Picture> picture_; // delivers to the server
};

} // namespace desktop::viewer
