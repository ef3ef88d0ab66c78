// Taking lone surrogates out of a line and putting them back into its strings.
#include "desktop/host/lone_escapes.hpp"

#include "desktop/foundation/text.hpp"
#include "desktop/host/half_pairs.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace desktop::host {
namespace {

constexpr char16_t replacement = 0xFFFD;
constexpr std::string_view replacementBytes = "\xEF\xBF\xBD";
constexpr std::size_t escapeLength = 6; // \uXXXX
constexpr std::size_t prefixLength = 2; // \u

/// The unit that an escape at that place stands for.
std::optional<char16_t> escapedUnit(std::string_view line, std::size_t at) {
    const std::string_view escape = line.substr(std::min(at, line.size()), escapeLength);
    if (escape.size() < escapeLength || !escape.starts_with("\\u")) {
        return std::nullopt;
    }
    constexpr int hexadecimal = 16;
    std::uint16_t unit = 0;
    const auto [end, failed] =
        std::from_chars(escape.begin() + prefixLength, escape.end(), unit, hexadecimal);
    const bool isWhole = failed == std::errc() && end == escape.end();
    return isWhole ? std::optional(static_cast<char16_t>(unit)) : std::nullopt;
}

bool mayHaveLoneEscapes(std::string_view line) {
    return line.find("\\ud") != std::string_view::npos ||
           line.find("\\uD") != std::string_view::npos;
}

} // namespace

LoneEscapes::LoneEscapes(std::string& line) {
    for (std::size_t at = mayHaveLoneEscapes(line) ? 0 : line.size(); at < line.size();) {
        at += take(line, at);
    }
}

std::size_t LoneEscapes::take(std::string& line, std::size_t at) {
    if (const auto unit = escapedUnit(line, at)) {
        return takeEscape(line, at, *unit);
    }
    if (std::string_view(line).substr(at).starts_with(replacementBytes)) {
        meant_.push_back(replacement);
        return replacementBytes.size();
    }
    return line[at] == '\\' ? prefixLength : 1;
}

std::size_t LoneEscapes::takeEscape(std::string& line, std::size_t at, char16_t unit) {
    if (isHighSurrogate(unit) &&
        isLowSurrogate(escapedUnit(line, at + escapeLength).value_or(u'\0'))) {
        return 2 * escapeLength;
    }
    if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
        line.replace(at + prefixLength, escapeLength - prefixLength, "fffd");
        meant_.push_back(unit);
    } else if (unit == replacement) {
        meant_.push_back(unit);
    }
    return escapeLength;
}

void LoneEscapes::putBack(std::string& text) {
    for (std::size_t at = 0; !meant_.empty(); at += replacementBytes.size()) {
        at = text.find(replacementBytes, at);
        if (at == std::string::npos) {
            return;
        }
        if (meant_.front() != replacement) {
            text.replace(at, bytesOfAHalf, bytesOfHalf(meant_.front()));
        }
        meant_.pop_front();
    }
}

} // namespace desktop::host
