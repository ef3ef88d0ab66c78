// Where a request may go: nowhere but to this machine.
#pragma once

#include "desktop/network/load_failure.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace desktop::network {

/// The parts of a URL that decide its route.
struct Target {
    std::string scheme; ///< lower case
    std::string host;   ///< lower case; an IP address in its shortest form, without brackets
    std::uint16_t port; ///< the scheme's own when the URL has none
};

/// To a server on this machine that the URL itself names.
struct ToThisMachine {};
/// To the service in this process that plays the named host, at that port.
struct ToService {
    std::uint16_t port;
};
using Route = std::variant<ToThisMachine, ToService, LoadFailure>;

/// The target of a URL, or why it has none.
std::variant<Target, LoadFailure> targetOf(const std::string& url);

/// The route of a target: loopback addresses lead to this machine, the names of services over TLS
/// to them; every other host cannot be found.
Route routeTo(const Target& target);

/// Who answers on that route, in the words of the event log: "local", "loopback" or "nobody".
std::string_view answeredBy(const Route& route);

} // namespace desktop::network
