// The pages' HTML.
#include "desktop/viewer/stand_in.hpp"

#include "desktop/viewer/page_address.hpp"

namespace desktop::viewer {
namespace {

constexpr std::size_t longestWords = 1'000;
constexpr std::size_t longestShownAddress = 1'000;
constexpr std::size_t longestValue = 120;
constexpr std::size_t mostValues = 8;

/// As text or in a quoted attribute.
std::string escaped(std::string_view text) {
    std::string html;
    for (const char c : text) {
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        case '\'':
            html += "&#39;";
            break;
        default:
            html += c;
        }
    }
    return html;
}

std::string tagged(const std::string& tag, std::string_view text) {
    return "<" + tag + ">" + escaped(text) + "</" + tag + ">";
}

/// The first letter of the host's name proper, large.
std::string initialOf(std::string_view host) {
    constexpr std::string_view prefix = "www.";
    if (host.starts_with(prefix)) {
        host.remove_prefix(prefix.size());
    }
    return host.empty() ? "?" : std::string(1, host.front());
}

std::string kindOf(const PageAddress& read) {
    if (read.translates) {
        return "翻译";
    }
    return read.words.empty() ? "网页" : "搜索";
}

std::string headOf(const PageAddress& read) {
    const std::string name = read.host.empty() ? "没有主机的地址" : read.host;
    return "<header><i>" + escaped(initialOf(read.host)) + "</i><div>" +
           tagged("b", beginningOf(name, longestValue)) + tagged("small", kindOf(read)) +
           "</div></header>";
}

std::string valuesOf(const PageAddress& read) {
    std::string rows;
    std::size_t count = 0;
    for (const auto& [name, value] : read.query) {
        if (count++ < mostValues) {
            rows += tagged("dt", beginningOf(name, longestValue)) +
                    tagged("dd", beginningOf(value, longestValue));
        }
    }
    return rows.empty() ? "" : "<dl>" + rows + "</dl>";
}

std::string bodyOf(const PageAddress& read, const std::string& address) {
    return headOf(read) + "<main>" +
           (read.words.empty() ? "" : tagged("h1", beginningOf(read.words, longestWords))) +
           valuesOf(read) + tagged("code", beginningOf(address, longestShownAddress)) +
           "</main><footer>这是本机的替身页，不是原网页：原网页没有载入，什么也没有发出。</footer>";
}

} // namespace

std::string standInPage(const std::string& address, const std::string& style,
                        uikit::Appearance appearance) {
    const PageAddress read = readPageAddress(address);
    return std::string(R"(<!doctype html><html lang="zh-CN" class=")") +
           (appearance == uikit::Appearance::dark ? "dark" : "light") +
           R"("><head><meta charset="utf-8">)" + tagged("title", read.host) + "<style>" + style +
           "</style></head><body>" + bodyOf(read, address) + "</body></html>\n";
}

std::string framePage(const std::string& address) {
    return "<!doctype html><html><head><meta charset=\"utf-8\"><style>html,body,iframe{width:100%;"
           "height:100%;margin:0;border:0;display:block;background:#fff}</style></head><body>"
           "<iframe sandbox=\"allow-scripts allow-forms\" referrerpolicy=\"no-referrer\" src=\"" +
           escaped(address) + "\"></iframe></body></html>\n";
}

std::string standInPolicy() {
    return "default-src 'none'; style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'; "
           "frame-ancestors 'self'; sandbox";
}

std::string framePolicy(const std::string& site) {
    return "default-src 'none'; style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'; "
           "frame-ancestors 'self'; sandbox allow-scripts allow-forms; frame-src " +
           site;
}

} // namespace desktop::viewer
