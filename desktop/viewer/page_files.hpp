// The files of the page: a fixed list, so that no request can name any other file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace desktop::viewer {

/// What is answered to a request, or why not.
struct Answer {
    unsigned status = 200;
    std::string type;
    std::string content;
    std::string location = {}; ///< where else to look; empty: nowhere
    /// What the browser may do with it (Content-Security-Policy); empty: what the page may.
    std::string policy = {};
};

/// The file of the page under that name ("" is the page itself); nothing when the page has none.
/// A file that cannot be read answers 500. Read anew at each request. Any thread.
[[nodiscard]] std::optional<Answer> pageFile(std::string_view name);

/// The answer 404.
[[nodiscard]] Answer noSuchFile();

} // namespace desktop::viewer
