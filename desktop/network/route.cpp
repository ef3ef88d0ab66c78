// Reading URLs, and the rule of routes.
#include "desktop/network/route.hpp"

#include "desktop/services/loopback_names.hpp"

#include <curl/curl.h>

#include <algorithm>
#include <charconv>
#include <memory>

namespace desktop::network {
namespace {

constexpr std::uint16_t httpsPort = 443;

std::string part(CURLU* url, CURLUPart which, unsigned int flags = 0) {
    char* text = nullptr;
    if (curl_url_get(url, which, &text, flags) != CURLUE_OK) {
        return {};
    }
    const std::unique_ptr<char, void (*)(void*)> owned(text, &curl_free);
    return text;
}

std::string lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

bool isLoopback(std::string_view host) {
    const bool isAddress = host.find_first_not_of("0123456789.") == std::string_view::npos;
    return host == "localhost" || host == "::1" || (isAddress && host.starts_with("127."));
}

} // namespace

std::variant<Target, LoadFailure> targetOf(const std::string& text) {
    const std::unique_ptr<CURLU, void (*)(CURLU*)> url(curl_url(), &curl_url_cleanup);
    if (const CURLUcode result =
            curl_url_set(url.get(), CURLUPART_URL, text.c_str(), CURLU_NON_SUPPORT_SCHEME);
        result != CURLUE_OK) {
        return LoadFailure::badUrl;
    }
    Target target{lower(part(url.get(), CURLUPART_SCHEME)), lower(part(url.get(), CURLUPART_HOST)),
                  0};
    if (target.scheme != "http" && target.scheme != "https") {
        return LoadFailure::unsupportedUrl;
    }
    if (target.host.starts_with('[')) {
        target.host = target.host.substr(1, target.host.size() - 2);
    }
    const std::string port = part(url.get(), CURLUPART_PORT, CURLU_DEFAULT_PORT);
    std::from_chars(port.data(), port.data() + port.size(), target.port);
    return target;
}

Route routeTo(const Target& target) {
    if (isLoopback(target.host)) {
        return ToThisMachine{};
    }
    if (target.scheme == "https" && target.port == httpsPort) {
        if (const auto port = services::portOf(target.host)) {
            return ToService{*port};
        }
    }
    return LoadFailure::cannotFindHost;
}

std::string_view answeredBy(const Route& route) {
    if (std::holds_alternative<ToService>(route)) {
        return "loopback";
    }
    return std::holds_alternative<ToThisMachine>(route) ? "local" : "nobody";
}

} // namespace desktop::network
