// Making files of queries.
#include "desktop/services/files/files.hpp"

#include "desktop/services/query.hpp"

#include <algorithm>
#include <charconv>
#include <map>

namespace desktop::services::files {
namespace {

constexpr std::size_t usualSize = 1000;
constexpr std::size_t largestSize = std::size_t{64} << 20U;

constexpr std::string_view page = R"(<!DOCTYPE html>
<html><head><title>Files</title>
<link rel="stylesheet" href="https://files.example/page.css">
<script src="https://files.example/page.js"></script></head>
<body><p><a href="https://files.example/report.pdf?size=200000">report</a>
<a href="https://files.example/%E7%85%A7%E7%89%87.zip">照片</a>
<a href="https://files.example/slow.bin?size=100000&amp;rate=20000">slow</a>
<a href="https://www.example.com">home</a></p></body></html>
)";

using Query = std::map<std::string, std::string>;

template <class Number>
std::optional<Number> numberIn(const Query& query, const std::string& name) {
    const auto entry = query.find(name);
    Number number{};
    if (entry == query.end() ||
        std::from_chars(entry->second.data(), entry->second.data() + entry->second.size(), number)
                .ec != std::errc()) {
        return std::nullopt;
    }
    return number;
}

std::optional<std::string> textIn(const Query& query, const std::string& name) {
    const auto entry = query.find(name);
    return entry == query.end() ? std::nullopt : std::optional(entry->second);
}

/// A header cannot hold a line break.
std::string oneLine(std::string text) {
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
    return text;
}

std::string bodyFor(const Query& query) {
    if (auto text = textIn(query, "text")) {
        return std::move(*text);
    }
    const std::size_t size = numberIn<std::size_t>(query, "size").value_or(usualSize);
    std::string body(std::min(size, largestSize), '\0');
    for (std::size_t i = 0; i < body.size(); ++i) {
        constexpr std::string_view line = "0123456789abcde\n";
        body[i] = line[i % line.size()];
    }
    return body;
}

void addName(const Query& query, Answer& answer) {
    if (const auto name = textIn(query, "name")) {
        answer.headers.emplace_back("Content-Disposition",
                                    oneLine("attachment; filename=\"" + *name + '"'));
    }
    if (const auto disposition = textIn(query, "disposition")) {
        answer.headers.emplace_back("Content-Disposition", oneLine(*disposition));
    }
}

Answer fileFor(const Query& query) {
    constexpr int found = 302;
    Answer answer;
    answer.contentType = oneLine(textIn(query, "type").value_or("application/octet-stream"));
    answer.body = bodyFor(query);
    answer.length = numberIn<std::uint64_t>(query, "length");
    answer.cut = numberIn<std::size_t>(query, "cut");
    answer.rate = static_cast<double>(numberIn<unsigned>(query, "rate").value_or(0));
    answer.status = numberIn<int>(query, "status").value_or(answer.status);
    if (const auto to = textIn(query, "to")) {
        answer.status = found;
        answer.headers.emplace_back("Location", oneLine(*to));
    }
    addName(query, answer);
    return answer;
}

} // namespace

Answer answerTo(std::string_view target) {
    if (pathOf(target) != "/") {
        return fileFor(queryOf(target));
    }
    Answer answer;
    answer.contentType = "text/html; charset=utf-8";
    answer.body = page;
    return answer;
}

} // namespace desktop::services::files
