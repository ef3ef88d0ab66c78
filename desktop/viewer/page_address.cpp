// Host, site and words of an address.
#include "desktop/viewer/page_address.hpp"

#include "desktop/network/route.hpp"
#include "desktop/services/query.hpp"

#include <algorithm>
#include <array>
#include <map>

namespace desktop::viewer {
namespace {

/// The names under which sites take the words to seek or translate, the surer ones first.
constexpr std::array<std::string_view, 10> wordNames{"q",       "wd", "word", "words", "query",
                                                     "keyword", "kw", "key",  "text",  "term"};

/// A policy for the browser is made of it: what has a meaning there must not be in it.
bool isPlainHost(std::string_view host) {
    return !host.empty() && std::ranges::all_of(host, [](unsigned char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '_';
    });
}

bool isUsualPort(const network::Target& target) {
    constexpr std::uint16_t http = 80;
    constexpr std::uint16_t https = 443;
    return target.port == (target.scheme == "https" ? https : http);
}

std::string siteOf(const network::Target& target) {
    if (!isPlainHost(target.host)) {
        return {};
    }
    return target.scheme + "://" + target.host +
           (isUsualPort(target) ? "" : ":" + std::to_string(target.port));
}

/// What follows "/search/" in the path, up to the next part of it.
std::string wordsInPath(std::string_view target) {
    constexpr std::string_view behind = "/search/";
    const std::string_view path = services::pathOf(target);
    const std::size_t found = path.find(behind);
    if (found == std::string_view::npos) {
        return {};
    }
    const std::string_view rest = path.substr(found + behind.size());
    return services::percentDecoded(rest.substr(0, rest.find('/')));
}

/// Takes the words out of the query.
std::string takeWords(std::map<std::string, std::string>& query) {
    for (const std::string_view name : wordNames) {
        if (auto found = query.extract(std::string(name)); found && !found.mapped().empty()) {
            return found.mapped();
        }
    }
    return {};
}

bool isTranslator(std::string_view host) {
    return host.find("translat") != std::string_view::npos ||
           host.find("fanyi") != std::string_view::npos;
}

} // namespace

PageAddress readPageAddress(const std::string& address) {
    PageAddress read;
    if (address.size() > longestAddress) {
        return read;
    }
    const auto target = network::targetOf(address);
    if (!std::holds_alternative<network::Target>(target)) {
        return read;
    }
    read.host = std::get<network::Target>(target).host;
    read.site = siteOf(std::get<network::Target>(target));
    const std::string_view asked = std::string_view(address).substr(0, address.find('#'));
    auto query = services::queryOf(asked);
    read.words = takeWords(query);
    if (read.words.empty()) {
        read.words = wordsInPath(asked);
    }
    read.translates = isTranslator(read.host);
    read.query.assign(query.begin(), query.end());
    return read;
}

std::string beginningOf(std::string_view text, std::size_t bytes) {
    if (text.size() <= bytes) {
        return std::string(text);
    }
    constexpr unsigned continues = 0x80;
    constexpr unsigned kindOfByte = 0xC0;
    while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & kindOfByte) == continues) {
        --bytes;
    }
    return std::string(text.substr(0, bytes)) + "…";
}

} // namespace desktop::viewer
