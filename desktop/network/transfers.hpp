// Loading over HTTP and HTTPS: all transfers of the process, on one thread.
#pragma once

#include "desktop/network/http.hpp"

#include <cstdint>
#include <functional>
#include <memory>

namespace desktop::network {

/// Sends requests to where `routeTo` lets them go, follows redirections, and shares connections.
/// Certificates are checked, name and chain, against the system's authorities and that of this
/// process's services. Any thread; calls on the listener come from the network's own.
class Transfers {
public:
    /// A load, to be cancelled by.
    using Ticket = std::uint64_t;

    static Transfers& shared();

    /// Begins a load. The listener is kept until its load has ended.
    Ticket start(HttpRequest request, std::shared_ptr<HttpListener> listener);
    /// Ends a load as cancelled; loads that have ended, and unknown tickets, are ignored.
    void cancel(Ticket ticket);

private:
    Transfers();

    class Engine;
    Engine* engine_; ///< lives as long as the process, like its thread
};

} // namespace desktop::network
