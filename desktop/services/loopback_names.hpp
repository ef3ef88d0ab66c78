// Host names of the outside world that lead to services in this process.
#pragma once

#include "desktop/services/answer.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace desktop::services {

/// The port on the loopback address where the service of that name listens over TLS; none when the
/// name is not in the table. The first call for a name starts its service. Any thread.
std::optional<std::uint16_t> portOf(std::string_view hostName);

/// Changes the answers of the service of that name ("translation") from the next request on, in
/// place of any former change; an empty one gives it its own answers back. False when there is no
/// such service. Any thread.
bool changeAnswers(std::string_view name, AnswerChange change);

/// The names of the services.
std::vector<std::string_view> serviceNames();

/// The certificate, in PEM, of the authority that vouches for the services. Any thread.
const std::string& authorityCertificate();

} // namespace desktop::services
