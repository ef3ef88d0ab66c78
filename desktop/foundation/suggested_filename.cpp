// Reading the header's parameters (RFC 6266), and making valid names.
#include "desktop/foundation/suggested_filename.hpp"

#include "bindings/foundation/http_url_response.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/text.hpp"
#include "desktop/network/header_text.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace desktop::foundation {
namespace {

using network::isSameName;
using network::trimmed;

/// Of a file system.
constexpr std::size_t longestName = 255;

constexpr std::array<std::pair<std::string_view, std::string_view>, 19> extensions{{
    {"application/json", "json"}, {"application/msword", "doc"}, {"application/pdf", "pdf"},
    {"application/xml", "xml"},   {"application/zip", "zip"},    {"audio/mp4", "m4a"},
    {"audio/mpeg", "mp3"},        {"audio/wav", "wav"},          {"image/gif", "gif"},
    {"image/jpeg", "jpeg"},       {"image/png", "png"},          {"image/webp", "webp"},
    {"text/css", "css"},          {"text/csv", "csv"},           {"text/html", "html"},
    {"text/javascript", "js"},    {"text/plain", "txt"},         {"video/mp4", "mp4"},
    {"video/quicktime", "mov"},
}};

std::string decoded(std::string_view text) {
    constexpr std::size_t digits = 2;
    constexpr int base = 16;
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        const char* const first = text.data() + i + 1;
        if (text[i] == '%' && i + digits < text.size() &&
            std::from_chars(first, first + digits, byte, base).ptr == first + digits) {
            bytes += static_cast<char>(byte);
            i += digits;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

bool isUtf8(std::string_view text) { return static_cast<bool>(ns::String::fromUtf8(text)); }

/// Up to a ";" that is not in quotation marks; `text` keeps what is behind it.
std::string_view cutParameter(std::string_view& text) {
    bool isQuoted = false;
    std::size_t end = 0;
    for (; end < text.size() && (isQuoted || text[end] != ';'); ++end) {
        if (text[end] == '"') {
            isQuoted = !isQuoted;
        } else if (text[end] == '\\' && isQuoted) {
            ++end;
        }
    }
    const std::string_view parameter = text.substr(0, end);
    text.remove_prefix(std::min(text.size(), end + 1));
    return parameter;
}

std::string unquoted(std::string_view value) {
    if (!value.starts_with('"')) {
        return std::string(value);
    }
    std::string text;
    for (std::size_t i = 1; i < value.size() && value[i] != '"'; ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) {
            ++i;
        }
        text += value[i];
    }
    return text;
}

/// "UTF-8'en'a%20b"; nothing in other encodings.
std::optional<std::string> extendedValue(std::string_view value) {
    const std::size_t language = value.find('\'');
    const std::size_t text = value.find('\'', language + 1);
    if (text == value.npos || !isSameName(value.substr(0, language), "utf-8")) {
        return std::nullopt;
    }
    std::string bytes = decoded(value.substr(text + 1));
    return isUtf8(bytes) ? std::optional(std::move(bytes)) : std::nullopt;
}

std::string nameInHeader(std::string_view header) {
    std::optional<std::string> plain;
    cutParameter(header); // "attachment"
    while (!header.empty()) {
        const std::string_view parameter = trimmed(cutParameter(header));
        const std::size_t sign = parameter.find('=');
        if (sign == parameter.npos) {
            continue;
        }
        const std::string_view name = trimmed(parameter.substr(0, sign));
        const std::string_view value = trimmed(parameter.substr(sign + 1));
        if (isSameName(name, "filename*")) {
            if (auto extended = extendedValue(value)) {
                return std::move(*extended); // it comes first, wherever it stands
            }
        } else if (isSameName(name, "filename") && !plain) {
            plain = unquoted(value);
        }
    }
    return plain.value_or("");
}

std::string_view withoutScheme(std::string_view url) {
    const std::size_t mark = url.find("://");
    return mark == url.npos ? std::string_view() : url.substr(mark + 3);
}

std::string lastPartOf(std::string_view url) {
    std::string_view path = withoutScheme(url);
    path = path.substr(0, path.find_first_of("?#"));
    path.remove_prefix(std::min(path.find('/'), path.size()));
    while (path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return decoded(path.substr(path.rfind('/') + 1));
}

std::string hostOf(std::string_view url) {
    std::string_view host = withoutScheme(url);
    host = host.substr(0, host.find_first_of("/?#"));
    host.remove_prefix(host.rfind('@') + 1);
    return std::string(host.substr(0, host.rfind(':')));
}

/// The text as a file's name; empty when nothing of it can be one.
std::string validName(std::string text) {
    text.erase(0, text.find_last_of("/\\") + 1);
    std::erase_if(text, [](char c) {
        constexpr char firstPrintable = ' ';
        constexpr char deletion = 0x7F;
        return (c >= 0 && c < firstPrintable) || c == deletion;
    });
    const bool isOne = text != "." && text != ".." && isUtf8(text) && !trimmed(text).empty();
    return isOne ? text : std::string();
}

std::string_view extensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == name.npos || dot == 0 ? std::string_view() : name.substr(dot);
}

std::string_view extensionFor(std::string_view mimeType) {
    const auto* const found = std::ranges::find_if(
        extensions, [mimeType](const auto& known) { return isSameName(mimeType, known.first); });
    return found == extensions.end() ? std::string_view() : found->second;
}

/// Cut between characters, and before the extension.
std::string fitting(const std::string& name) {
    if (name.size() <= longestName) {
        return name;
    }
    std::string_view extension = extensionOf(name);
    extension = extension.size() < longestName / 2 ? extension : std::string_view();
    std::size_t length = longestName - extension.size();
    while (length > 0 && continuesCharacter(name[length])) {
        --length;
    }
    return name.substr(0, length) + std::string(extension);
}

ns::String headerOf(ns::UrlResponse response, std::string_view name) {
    const ns::Dictionary fields = response.as<ns::HttpUrlResponse>().allHeaderFields();
    for (const objc::Object key : fields.allKeys()) {
        if (isSameName(key.as<ns::String>().utf8(), name)) {
            return fields.get(key).as<ns::String>();
        }
    }
    return nullptr;
}

/// Without its parameters.
std::string mimeTypeOf(ns::UrlResponse response) {
    const std::string header = headerOf(response, "Content-Type").utf8();
    return std::string(trimmed(std::string_view(header).substr(0, header.find(';'))));
}

ns::String answered(objc::Next<ns::String()>, ns::UrlResponse response) {
    return ns::String::fromUtf8(suggestedFilename(headerOf(response, "Content-Disposition").utf8(),
                                                  response.url().absoluteString().utf8(),
                                                  mimeTypeOf(response)));
}

} // namespace

std::string suggestedFilename(std::string_view contentDisposition, std::string_view url,
                              std::string_view mimeType) {
    std::string name = validName(nameInHeader(contentDisposition));
    if (name.empty()) {
        name = validName(lastPartOf(url));
    }
    const bool isHost = name.empty();
    if (isHost) {
        name = validName(hostOf(url));
    }
    if (name.empty()) {
        name = "unknown";
    }
    const std::string_view extension = extensionFor(mimeType);
    if (!extension.empty() && (isHost || extensionOf(name).empty())) {
        name.append(".").append(extension);
    }
    return fitting(name);
}

void installSuggestedFilename() {
    objc::install(objc::hook<"NSURLResponse", "suggestedFilename", &answered>());
}

} // namespace desktop::foundation
