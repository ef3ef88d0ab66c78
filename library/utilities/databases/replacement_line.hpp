// The keyboard's text replacements as lines of a file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wentra::utilities {

/// What is typed and what stands there instead, as UTF-8.
struct TextReplacement {
    std::string phrase; ///< what is put in
    std::string shortcut;
};

/// The line "phrase shortcut". Whatever follows a second blank is left out, so that neither part
/// can have one. None for a line without a blank.
[[nodiscard]] std::optional<TextReplacement> replacementIn(std::string_view line);

/// The replacement as a line, with an empty line behind it.
[[nodiscard]] std::string lineOf(std::string_view phrase, std::string_view shortcut);

/// The time that the database keeps with an entry, for a moment in seconds since 1970.
[[nodiscard]] std::string timeStamp(double moment);

} // namespace wentra::utilities
