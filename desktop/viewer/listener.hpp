// The loopback socket at which pages arrive.
#pragma once

#include <cstdint>
#include <stdexcept>

namespace desktop::viewer {

/// Why there is no socket, and what to do about it.
struct ListenerError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Listens at 127.0.0.1 from the first moment to the last, so that pages that come while an
/// application starts wait instead of being refused.
class Listener {
public:
    /// At this port, 0: at one that is free. Throws ListenerError.
    explicit Listener(std::uint16_t port);
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener();

    [[nodiscard]] int socket() const { return socket_; }
    [[nodiscard]] std::uint16_t port() const { return port_; }

private:
    int socket_;
    std::uint16_t port_;
};

} // namespace desktop::viewer
