// A web server for tests, which says exactly what it is told.
#pragma once

#include <arpa/inet.h>
#include <functional>
#include <netinet/in.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace tests {

/// Answers one request a connection with the bytes that `answer` makes of the request's bytes, then
/// closes it. Nothing is sent for "". One connection after the other.
class PlainServer {
public:
    explicit PlainServer(std::function<std::string(const std::string&)> answer)
        : answer_(std::move(answer)), socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address);
        listen(socket_, SOMAXCONN);
        socklen_t size = sizeof address;
        getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size);
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { serve(); });
    }
    PlainServer(const PlainServer&) = delete;
    PlainServer& operator=(const PlainServer&) = delete;
    ~PlainServer() {
        shutdown(socket_, SHUT_RDWR);
        thread_.join();
        close(socket_);
    }

    [[nodiscard]] std::string url(const std::string& path) const {
        return "http://127.0.0.1:" + std::to_string(port_) + path;
    }

private:
    void serve() {
        for (int client = -1; (client = accept(socket_, nullptr, nullptr)) >= 0;) {
            std::string request;
            char buffer[4096];
            while (request.find("\r\n\r\n") == std::string::npos) {
                const ssize_t length = read(client, buffer, sizeof buffer);
                if (length <= 0) {
                    break;
                }
                request.append(buffer, static_cast<std::size_t>(length));
            }
            const std::string text = answer_(request);
            for (std::size_t sent = 0; sent < text.size();) {
                const ssize_t length =
                    send(client, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
                if (length <= 0) {
                    break;
                }
                sent += static_cast<std::size_t>(length);
            }
            close(client);
        }
    }

    std::function<std::string(const std::string&)> answer_;
    int socket_;
    int port_ = 0;
    std::thread thread_;
};

} // namespace tests
