// A page without a browser: starts the host with its server, and only reads what it is sent.
#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/websocket/stream.hpp>
#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace bench {

class PageClient {
public:
    struct Program {
        const char* host;
        const char* library;
        std::string application;
        std::string root; ///< the folder of the phone's data
    };

    /// Starts the program and connects; throws std::exception.
    explicit PageClient(const Program& program);
    PageClient(const PageClient&) = delete;
    PageClient& operator=(const PageClient&) = delete;
    /// Interrupts the host, and waits until it has ended.
    ~PageClient();

    /// Sends a message of the page.
    void say(const nlohmann::json& message);
    /// The result of a command of the automation protocol.
    nlohmann::json ask(nlohmann::json request);
    /// Reads for that long; each frame counts as seen.
    void read(std::chrono::duration<double> time);
    /// Reads until there is one frame more.
    void readFrame();
    /// Says the messages that `next` makes, one each time that this interval is over, while `read`
    /// is at work; nothing with an empty function.
    void sayEvery(std::chrono::microseconds interval, std::function<nlohmann::json()> next);

    [[nodiscard]] std::size_t frames() const { return frames_; }
    /// Of all frames so far.
    [[nodiscard]] std::size_t bytes() const { return bytes_; }

private:
    struct Address {
        std::uint16_t port;
        std::string path;
    };

    Address start(const Program& program);
    void connect(const Address& address);
    boost::asio::awaitable<void> reading();
    boost::asio::awaitable<void> writing();
    boost::asio::awaitable<void> saying();
    void received(const std::vector<unsigned char>& message, bool isText);
    void runUntil(const std::function<bool()>& isDone);

    pid_t process_ = -1;
    boost::asio::io_context context_{1};
    boost::beast::websocket::stream<boost::asio::ip::tcp::socket> stream_{context_};
    std::deque<std::string> outgoing_;
    std::chrono::microseconds interval_{};
    std::function<nlohmann::json()> next_;
    std::size_t frames_ = 0;
    std::size_t bytes_ = 0;
    std::size_t asked_ = 0;
    nlohmann::json answer_;
};

} // namespace bench
