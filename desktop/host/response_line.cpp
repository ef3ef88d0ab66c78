// Writing values; strings with lone surrogates are written part by part.
#include "desktop/host/response_line.hpp"

#include "desktop/host/half_pairs.hpp"

#include <array>
#include <cstdio>
#include <string_view>

namespace desktop::host {
namespace {

std::string dumped(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string escapeOf(char16_t surrogate) {
    std::array<char, sizeof "\\uXXXX"> text{};
    std::snprintf(text.data(), text.size(), "\\u%04x", unsigned{surrogate});
    return text.data();
}

void writeString(std::string_view text, std::string& line) {
    const auto withoutQuotes = [](std::string_view part) {
        const std::string quoted = dumped(part);
        return quoted.substr(1, quoted.size() - 2);
    };
    line += '"';
    for (std::size_t half = findHalf(text); half != std::string_view::npos; half = findHalf(text)) {
        line += withoutQuotes(text.substr(0, half)) + escapeOf(halfAt(text, half));
        text.remove_prefix(half + bytesOfAHalf);
    }
    line += withoutQuotes(text) + '"';
}

void write(const Json& value, std::string& line) {
    if (value.is_string()) {
        writeString(value.get_ref<const std::string&>(), line);
        return;
    }
    if (!value.is_structured() || value.empty()) {
        line += dumped(value);
        return;
    }
    char before = value.is_array() ? '[' : '{';
    for (const auto& [key, member] : value.items()) {
        line += std::exchange(before, ',');
        if (value.is_object()) {
            writeString(key, line);
            line += ':';
        }
        write(member, line);
    }
    line += value.is_array() ? ']' : '}';
}

} // namespace

std::string written(const Json& value) {
    try {
        return value.dump();
    } catch (const Json::type_error&) { // not all of it is UTF-8
        std::string line;
        write(value, line);
        return line;
    }
}

} // namespace desktop::host
