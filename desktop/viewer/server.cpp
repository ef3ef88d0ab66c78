// Accepting connections, checking who asks, answering.
#include "desktop/viewer/server.hpp"

#include "desktop/viewer/access.hpp"
#include "desktop/viewer/page_connection.hpp"

#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket/rfc6455.hpp>

#include <chrono>
#include <map>
#include <mutex>
#include <thread>

namespace desktop::viewer {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::ip::tcp;
using Failure = beast::error_code;
using HttpResponse = http::response<http::string_body>;

std::string_view view(beast::string_view text) { return {text.data(), text.size()}; }

Answer refusal(http::status status, std::string why) {
    return {static_cast<unsigned>(status), "text/plain; charset=utf-8", std::move(why) + "\n"};
}

/// What the page may do: nothing from elsewhere is run, told or shown in it.
constexpr const char* pagePolicy = "default-src 'none'; script-src 'self'; style-src 'self'; "
                                   "img-src 'self' blob: data:; media-src 'self' blob:; "
                                   "connect-src 'self' ws://127.0.0.1:* ws://localhost:*; "
                                   "frame-src 'self'; base-uri 'none'; form-action 'none'; "
                                   "frame-ancestors 'none'";

/// What every answer says. No name is looked up before something is loaded from there.
void secure(HttpResponse& response, const std::string& policy) {
    response.set("Content-Security-Policy", policy.empty() ? pagePolicy : policy);
    response.set("X-DNS-Prefetch-Control", "off");
    response.set("X-Content-Type-Options", "nosniff");
    response.set("Referrer-Policy", "no-referrer");
    response.set(http::field::cache_control, "no-store");
    response.set("Cross-Origin-Resource-Policy", "same-origin");
    response.set("Cross-Origin-Opener-Policy", "same-origin");
}

} // namespace

/// Who asked for what is still being made. Any thread.
template <class Visit>
class WaitingVisits {
public:
    FetchNumber add(std::shared_ptr<Visit> visit) {
        const std::lock_guard lock(mutex_);
        visits_.emplace(++last_, std::move(visit));
        return last_;
    }
    /// Null when nobody waits for it any more.
    std::shared_ptr<Visit> take(FetchNumber fetch) {
        const std::lock_guard lock(mutex_);
        const auto found = visits_.extract(fetch);
        return found ? found.mapped() : nullptr;
    }
    bool has(FetchNumber fetch) {
        const std::lock_guard lock(mutex_);
        return visits_.contains(fetch);
    }

private:
    std::mutex mutex_;
    std::map<FetchNumber, std::shared_ptr<Visit>> visits_;
    FetchNumber last_ = 0;
};

/// Everything that belongs to the server's thread.
struct Server::Room {
    class Visit;

    Room(int socket, std::string secret, ServerListener told)
        : acceptor(context, tcp::v4(), socket), token(std::move(secret)),
          listener(std::move(told)) {
        listener.closed = [this, tell = std::move(listener.closed)](PageNumber page) {
            pages.erase(page);
            tell(page);
        };
    }

    void accept();
    void acceptLater();
    void welcome(tcp::socket socket, const HttpRequest& request);
    /// The connection with that page, as long as there is one.
    [[nodiscard]] std::shared_ptr<PageConnection> present(PageNumber number) const {
        const auto found = pages.find(number);
        return found == pages.end() ? nullptr : found->second;
    }

    asio::io_context context{1};
    tcp::acceptor acceptor;
    asio::steady_timer pause{context};
    std::string token;
    ServerListener listener;
    std::map<PageNumber, std::shared_ptr<PageConnection>> pages;
    PageNumber lastPage = 0;
    WaitingVisits<Visit> waiting;
    std::thread thread; // last: it uses all of the above
};

/// A connection that asks for files, one after the other.
class Server::Room::Visit : public std::enable_shared_from_this<Visit> {
public:
    Visit(tcp::socket socket, Room& room) : stream_(std::move(socket)), room_(room) {}

    void read() {
        constexpr std::uint32_t longestHeader = 8192;
        constexpr std::chrono::seconds patience(30);
        parser_.emplace();
        parser_->header_limit(longestHeader);
        stream_.expires_after(patience);
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](Failure failure, std::size_t) {
                             if (!failure) {
                                 self->respond(self->parser_->get());
                             } else if (failure == http::error::body_limit ||
                                        failure == http::error::header_limit ||
                                        failure == http::error::unexpected_body) {
                                 self->keepsAlive_ = false;
                                 self->send(refusal(http::status::bad_request, "too much"));
                             }
                         });
    }

    void send(const Answer& answer) {
        response_.emplace(http::int_to_status(answer.status), 11);
        response_->set(http::field::content_type, answer.type);
        if (!answer.location.empty()) {
            response_->set(http::field::location, answer.location);
        }
        secure(*response_, answer.policy);
        response_->keep_alive(keepsAlive_);
        response_->body() = answer.content;
        response_->prepare_payload();
        http::async_write(stream_, *response_,
                          [self = shared_from_this()](Failure failure, std::size_t) {
                              if (!failure && self->keepsAlive_) {
                                  self->read();
                              }
                          });
    }

private:
    void respond(const HttpRequest& request) {
        keepsAlive_ = request.keep_alive();
        const std::string_view host = view(request[http::field::host]);
        const std::string target(view(request.target()));
        if (!isLoopbackHost(host)) {
            send(refusal(http::status::forbidden, "this address is for this machine only"));
        } else if (isTokenAlone(target, room_.token)) {
            send({static_cast<unsigned>(http::status::permanent_redirect), "text/plain", "",
                  target + "/"});
        } else if (const char* name = afterToken(target, room_.token); name == nullptr) {
            send(refusal(http::status::forbidden,
                         "this is not the address that was printed at the start"));
        } else if (request.method() != http::verb::get) {
            send(refusal(http::status::method_not_allowed, "only GET is known"));
        } else if (std::string_view(name) == "socket") {
            connect(request, host);
        } else if (const auto file = pageFile(name)) {
            send(*file);
        } else {
            const FetchNumber fetch = room_.waiting.add(shared_from_this());
            watch(fetch);
            room_.listener.fetched(fetch, name);
        }
    }

    /// Nobody waits any more when the connection ends.
    void watch(FetchNumber fetch) {
        const auto isOver = [this] {
            char next = 0;
            Failure failure;
            stream_.socket().receive(asio::buffer(&next, 1), tcp::socket::message_peek, failure);
            return failure && failure != asio::error::would_block;
        };
        stream_.socket().non_blocking(true);
        stream_.socket().async_wait(tcp::socket::wait_read,
                                    [weak = weak_from_this(), fetch, isOver](Failure failure) {
                                        const auto self = weak.lock();
                                        if (self && !failure && isOver()) {
                                            self->room_.waiting.take(fetch);
                                        }
                                    });
    }

    void connect(const HttpRequest& request, std::string_view host) {
        if (!beast::websocket::is_upgrade(request)) {
            send(refusal(http::status::bad_request, "this path is for WebSocket connections"));
        } else if (!isSameOrigin(view(request[http::field::origin]), host)) {
            send(refusal(http::status::forbidden, "the page came from elsewhere"));
        } else if (room_.pages.size() >= mostPages) {
            send(refusal(http::status::service_unavailable, "too many pages show the phone"));
        } else {
            room_.welcome(stream_.release_socket(), request);
        }
    }

    beast::tcp_stream stream_;
    Room& room_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::empty_body>> parser_;
    std::optional<HttpResponse> response_;
    bool keepsAlive_ = false;
};

void Server::Room::accept() {
    acceptor.async_accept([this](Failure failure, tcp::socket socket) {
        if (failure) {
            acceptLater();
            return;
        }
        socket.set_option(tcp::no_delay(true), failure);
        std::make_shared<Visit>(std::move(socket), *this)->read();
        accept();
    });
}

/// While there are no descriptors, the next attempt fails as quickly as the last one did.
void Server::Room::acceptLater() {
    constexpr std::chrono::milliseconds rest(100);
    pause.expires_after(rest);
    pause.async_wait([this](Failure) { accept(); });
}

void Server::Room::welcome(tcp::socket socket, const HttpRequest& request) {
    const PageNumber number = ++lastPage;
    const auto page = std::make_shared<PageConnection>(std::move(socket), number, listener);
    pages.emplace(number, page);
    page->accept(request);
}

Server::Server(int socket, std::string token, ServerListener listener)
    : room_(std::make_unique<Room>(socket, std::move(token), std::move(listener))) {
    room_->accept();
    room_->thread = std::thread([room = room_.get()] { room->context.run(); });
}

Server::~Server() {
    room_->context.stop();
    room_->thread.join();
}

void Server::send(PageNumber number, std::string text) {
    asio::post(room_->context, [room = room_.get(), number, text = std::move(text)]() mutable {
        if (const auto page = room->present(number)) {
            page->send(std::move(text));
        }
    });
}

void Server::send(PageNumber number, Bytes bytes) {
    asio::post(room_->context, [room = room_.get(), number, bytes = std::move(bytes)]() mutable {
        if (const auto page = room->present(number)) {
            page->send(std::move(bytes));
        }
    });
}

void Server::handled(PageNumber number) {
    asio::post(room_->context, [room = room_.get(), number] {
        if (const auto page = room->present(number)) {
            page->handled();
        }
    });
}

bool Server::isAwaited(FetchNumber fetch) const { return room_->waiting.has(fetch); }

void Server::answer(FetchNumber fetch, Answer answer) {
    asio::post(room_->context, [room = room_.get(), fetch, answer = std::move(answer)] {
        if (const auto visit = room->waiting.take(fetch)) {
            visit->send(answer);
        }
    });
}

} // namespace desktop::viewer
