// Host names of the outside world that lead to services in this process.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace desktop::services {

/// The port on the loopback address where the service of that name listens over TLS; none when the
/// name is not in the table. The first call for a name starts its service. Any thread.
std::optional<std::uint16_t> portOf(std::string_view hostName);

/// The certificate, in PEM, of the authority that vouches for the services. Any thread.
const std::string& authorityCertificate();

} // namespace desktop::services
