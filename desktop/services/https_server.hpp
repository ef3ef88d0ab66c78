// A web server over TLS for this machine alone.
#pragma once

#include "desktop/services/answer.hpp"
#include "desktop/services/authority.hpp"

#include <cstdint>
#include <functional>
#include <string_view>

namespace desktop::services {

/// Answers a GET of `target`, path and query. Called on the server's thread.
using Handler = std::function<Answer(std::string_view target)>;

/// Starts a server on the loopback address that shows `identity`, and returns its port, which the
/// system chooses. It serves, on a thread of its own, until the process ends: requests of less than
/// 1 MB, connections that stay quiet for less than a minute. Throws when it cannot start.
std::uint16_t serveHttps(const Identity& identity, Handler handler);

} // namespace desktop::services
