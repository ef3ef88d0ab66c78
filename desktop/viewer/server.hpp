// The loopback server: serves the page's files and holds the connection with the page.
#pragma once

#include "desktop/viewer/frame.hpp"
#include "desktop/viewer/page_files.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace desktop::viewer {

/// Pages are numbered in the order in which they connect.
using PageNumber = std::uint64_t;
using FetchNumber = std::uint64_t;

/// What the server tells, on a thread of its own.
struct ServerListener {
    /// A page has connected.
    std::function<void(PageNumber)> opened;
    /// A page sent a text. Each must be answered by `Server::handled`: while too many are not, the
    /// server reads no further.
    std::function<void(PageNumber, std::string)> said;
    /// The page is gone.
    std::function<void(PageNumber)> closed;
    /// A page wants something that is none of its files, by this path; `Server::answer` follows.
    std::function<void(FetchNumber, std::string)> fetched;
};

/// Runs on a thread of its own from the first moment to the last. Only requests to this machine's
/// own names with the token in their path are served; connections only to pages that came from
/// here, and to so many at a time. The functions may be called on any thread; what they send
/// to a page that is gone is dropped.
class Server {
public:
    static constexpr std::size_t mostPages = 8;

    /// Takes over the listening socket.
    Server(int socket, std::string token, ServerListener listener);
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    /// Ends all connections; nothing is told any more.
    ~Server();

    void send(PageNumber page, std::string text);
    void send(PageNumber page, Bytes bytes);
    void handled(PageNumber page);
    /// Whether somebody still waits for the answer.
    [[nodiscard]] bool isAwaited(FetchNumber fetch) const;
    void answer(FetchNumber fetch, Answer answer);

private:
    struct Room;
    std::unique_ptr<Room> room_;
};

} // namespace desktop::viewer
