// Binding to the loopback address.
#include "desktop/viewer/listener.hpp"

#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace desktop::viewer {
namespace {

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

sockaddr* generic(sockaddr_in& address) { return reinterpret_cast<sockaddr*>(&address); }

std::string refusal(std::uint16_t port) {
    const std::string number = std::to_string(port);
    if (errno == EADDRINUSE) {
        return "port " + number + " is taken; choose another by --port, or leave --port out";
    }
    return "cannot listen at port " + number + " of 127.0.0.1: " + std::strerror(errno);
}

} // namespace

Listener::Listener(std::uint16_t port) : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    const int on = 1;
    sockaddr_in address = loopback(port);
    socklen_t size = sizeof address;
    if (socket_ < 0 || setsockopt(socket_, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on) != 0 ||
        bind(socket_, generic(address), size) != 0 || listen(socket_, SOMAXCONN) != 0 ||
        getsockname(socket_, generic(address), &size) != 0) {
        const std::string why = refusal(port);
        close(socket_);
        throw ListenerError(why);
    }
    port_ = ntohs(address.sin_port);
}

Listener::~Listener() { close(socket_); }

} // namespace desktop::viewer
