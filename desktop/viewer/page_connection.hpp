// One page's WebSocket connection. Everything happens on the server's thread.
#pragma once

#include "desktop/viewer/server.hpp"

#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/websocket/stream.hpp>

#include <deque>

namespace desktop::viewer {

using HttpRequest = boost::beast::http::request<boost::beast::http::empty_body>;

class PageConnection : public std::enable_shared_from_this<PageConnection> {
public:
    PageConnection(boost::asio::ip::tcp::socket socket, PageNumber number,
                   const ServerListener& listener)
        : stream_(std::move(socket)), number_(number), listener_(listener) {}

    /// Answers the request for a connection; from then on texts are told.
    void accept(const HttpRequest& request);
    /// A page that does not take what it is sent is cut off.
    void send(std::string text) { send({false, {text.begin(), text.end()}}); }
    void send(Bytes bytes) { send({true, std::move(bytes)}); }
    /// One text less is on its way to the phone.
    void handled();

private:
    struct Outgoing {
        bool isBinary;
        Bytes bytes;
    };

    void send(Outgoing message);
    void read();
    void received();
    void write();
    void close(unsigned short code);
    void end();

    boost::beast::websocket::stream<boost::beast::tcp_stream> stream_;
    PageNumber number_;
    const ServerListener& listener_;
    boost::beast::flat_buffer buffer_;
    std::size_t unhandled_ = 0;
    bool isReading_ = false;
    bool isOpen_ = false;
    bool isClosing_ = false;
    std::deque<Outgoing> outgoing_;
    std::size_t outgoingBytes_ = 0;
};

} // namespace desktop::viewer
