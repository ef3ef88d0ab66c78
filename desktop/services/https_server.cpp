// One coroutine a connection, all on one thread: an answer that waits keeps nobody else waiting.
#include "desktop/services/https_server.hpp"

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>

#include <algorithm>
#include <chrono>
#include <exception>
#include <memory>
#include <openssl/crypto.h>
#include <string_view>
#include <thread>
#include <utility>

namespace desktop::services {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::use_awaitable;
using asio::ip::tcp;

constexpr std::chrono::seconds quietTime{60};
constexpr std::size_t largestRequest = 1U << 20U;

/// Servers answer until the process is gone: OpenSSL must not tidy up while it exits. Who uses it
/// first decides, so this is done before anybody does.
[[maybe_unused]] const bool staysWhole = OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr) == 1;

struct Server {
    Server(const Identity& identity, Handler answering) : handler(std::move(answering)) {
        tls.use_certificate_chain(asio::buffer(identity.certificate));
        tls.use_private_key(asio::buffer(identity.key), asio::ssl::context::pem);
    }

    Handler handler;
    asio::io_context events;
    asio::ssl::context tls{asio::ssl::context::tls_server};
    tcp::acceptor acceptor{events, tcp::endpoint(asio::ip::address_v4::loopback(), 0)};
};

using Stream = beast::ssl_stream<beast::tcp_stream>;
using Request = http::request<http::string_body>;

asio::awaitable<Request> readRequest(Stream& stream, beast::flat_buffer& buffer) {
    http::request_parser<http::string_body> parser;
    parser.header_limit(largestRequest);
    parser.body_limit(largestRequest);
    beast::get_lowest_layer(stream).expires_after(quietTime);
    co_await http::async_read(stream, buffer, parser, use_awaitable);
    beast::get_lowest_layer(stream).expires_never();
    co_return parser.release();
}

asio::awaitable<void> pause(double seconds) {
    asio::steady_timer timer(co_await asio::this_coro::executor);
    timer.expires_after(std::chrono::duration_cast<std::chrono::nanoseconds>(
        std::chrono::duration<double>(seconds)));
    co_await timer.async_wait(use_awaitable);
}

/// HTTP has no body with these.
bool hasBody(http::status status) {
    return http::to_status_class(status) != http::status_class::informational &&
           status != http::status::no_content && status != http::status::not_modified;
}

/// Whether the connection can go on behind the answer: the other side must know where that ends.
bool endsWhereItSays(const Answer& answer) { return !answer.length && !answer.cut; }

http::response<http::empty_body> headOf(const Request& request, const Answer& answer) {
    http::response<http::empty_body> head(static_cast<http::status>(answer.status),
                                          request.version());
    for (const auto& [name, value] : answer.headers) {
        head.insert(name, value);
    }
    head.set(http::field::content_type, answer.contentType);
    head.keep_alive(request.keep_alive() && endsWhereItSays(answer));
    if (hasBody(head.result())) {
        head.content_length(answer.length.value_or(answer.body.size()));
    }
    return head;
}

asio::awaitable<void> writeBody(Stream& stream, const Answer& answer) {
    constexpr double pieces = 10; // a second
    std::string_view body = answer.body;
    body = body.substr(0, answer.cut.value_or(body.size()));
    const std::size_t piece = answer.rate > 0
                                  ? static_cast<std::size_t>(std::max(1.0, answer.rate / pieces))
                                  : std::max<std::size_t>(body.size(), 1);
    while (!body.empty()) {
        const std::string_view next = body.substr(0, piece);
        beast::get_lowest_layer(stream).expires_after(quietTime);
        co_await asio::async_write(stream, asio::buffer(next), use_awaitable);
        body.remove_prefix(next.size());
        if (answer.rate > 0) {
            beast::get_lowest_layer(stream).expires_never();
            co_await pause(static_cast<double>(next.size()) / answer.rate);
        }
    }
}

asio::awaitable<void> write(Stream& stream, const Request& request, const Answer& answer) {
    const http::response<http::empty_body> head = headOf(request, answer);
    http::response_serializer<http::empty_body> serializer(head);
    beast::get_lowest_layer(stream).expires_after(quietTime);
    co_await http::async_write_header(stream, serializer, use_awaitable);
    if (hasBody(head.result())) {
        co_await writeBody(stream, answer);
    }
}

Answer answerTo(const Server& server, const Request& request) {
    if (request.method() != http::verb::get) {
        Answer refusal;
        refusal.status = static_cast<int>(http::status::method_not_allowed);
        return refusal;
    }
    return server.handler(std::string_view(request.target().data(), request.target().size()));
}

asio::awaitable<void> converse(const Server& server, Stream stream) {
    beast::flat_buffer buffer;
    beast::get_lowest_layer(stream).expires_after(quietTime);
    co_await stream.async_handshake(asio::ssl::stream_base::server, use_awaitable);
    for (bool more = true; more;) {
        const Request request = co_await readRequest(stream, buffer);
        const Answer answer = answerTo(server, request);
        co_await pause(answer.delay);
        if (answer.dropped) {
            co_return;
        }
        co_await write(stream, request, answer);
        more = request.keep_alive() && endsWhereItSays(answer);
        if (answer.cut) {
            co_return; // without a farewell
        }
    }
    co_await stream.async_shutdown(use_awaitable);
}

asio::awaitable<void> accept(Server& server) {
    for (;;) {
        tcp::socket socket = co_await server.acceptor.async_accept(use_awaitable);
        socket.set_option(tcp::no_delay(true)); // the body does not wait until the header has come
        // What goes wrong in one conversation ends that conversation only.
        asio::co_spawn(server.events, converse(server, Stream(std::move(socket), server.tls)),
                       asio::detached);
    }
}

} // namespace

std::uint16_t serveHttps(const Identity& identity, Handler handler) {
    auto server = std::make_unique<Server>(identity, std::move(handler));
    const std::uint16_t port = server->acceptor.local_endpoint().port();
    asio::co_spawn(server->events, accept(*server), asio::detached);
    std::thread([server = std::move(server)] { server->events.run(); }).detach();
    return port;
}

} // namespace desktop::services
