// Who may speak to the viewer: the secret in its address, and the checks against foreign pages.
#pragma once

#include <string>
#include <string_view>

namespace desktop::viewer {

/// 128 random bits in hexadecimal: the first part of every path that the viewer serves. Whoever
/// knows it is the person to whom the address was printed. Throws std::system_error when the system
/// has no random bytes.
[[nodiscard]] std::string freshToken();

/// Whether they are equal, in a time that tells nothing about how much of them is.
[[nodiscard]] bool isSameToken(std::string_view given, std::string_view token);

/// Whether the Host header names this machine. A foreign name that was made to point here (DNS
/// rebinding) arrives with its own name.
[[nodiscard]] bool isLoopbackHost(std::string_view host);

/// Whether a page of the same host opens the connection: what Origin says against what Host says.
[[nodiscard]] bool isSameOrigin(std::string_view origin, std::string_view host);

/// Whether the path is the token alone, without the slash that follows it in the address.
[[nodiscard]] bool isTokenAlone(std::string_view path, std::string_view token);

/// What remains of the path after "/TOKEN/" ("" for the page itself); null when the token is
/// another or missing.
[[nodiscard]] const char* afterToken(const std::string& path, std::string_view token);

} // namespace desktop::viewer
