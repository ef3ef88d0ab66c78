// Making and comparing secrets, reading Host and Origin.
#include "desktop/viewer/access.hpp"

#include <array>
#include <cerrno>
#include <cstddef>
#include <sys/random.h>
#include <system_error>

namespace desktop::viewer {

std::string freshToken() {
    std::array<unsigned char, 16> bytes{};
    // So few bytes come at once or not at all.
    if (getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
        throw std::system_error(errno, std::generic_category(), "no random bytes");
    }
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr unsigned bitsPerDigit = 4;
    constexpr unsigned lowDigit = 0xF;
    std::string token;
    for (const unsigned byte : bytes) {
        token += digits[byte >> bitsPerDigit];
        token += digits[byte & lowDigit];
    }
    return token;
}

bool isSameToken(std::string_view given, std::string_view token) {
    // The length is no secret.
    if (given.size() != token.size()) {
        return false;
    }
    volatile unsigned difference = 0;
    for (std::size_t i = 0; i < token.size(); ++i) {
        difference = difference |
                     (static_cast<unsigned char>(given[i]) ^ static_cast<unsigned char>(token[i]));
    }
    return difference == 0;
}

bool isLoopbackHost(std::string_view host) {
    const auto port = host.rfind(':');
    if (port != std::string_view::npos && host.find(']', port) == std::string_view::npos) {
        const std::string_view digits = host.substr(port + 1);
        if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) {
            return false;
        }
        host = host.substr(0, port);
    }
    return host == "127.0.0.1" || host == "localhost" || host == "[::1]";
}

bool isSameOrigin(std::string_view origin, std::string_view host) {
    constexpr std::string_view scheme = "http://";
    return origin.starts_with(scheme) && origin.substr(scheme.size()) == host;
}

bool isTokenAlone(std::string_view path, std::string_view token) {
    return path.starts_with('/') && isSameToken(path.substr(1), token);
}

const char* afterToken(const std::string& path, std::string_view token) {
    const std::size_t end = token.size() + 1;
    const bool fits = path.size() > end && path.front() == '/' && path[end] == '/' &&
                      isSameToken(std::string_view(path).substr(1, token.size()), token);
    return fits ? path.c_str() + end + 1 : nullptr;
}

} // namespace desktop::viewer
