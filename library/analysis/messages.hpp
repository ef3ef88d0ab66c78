// The result screen's text.
#pragma once

#include "library/analysis/library_lines.hpp"

#include <string>
#include <string_view>

namespace wentra::analysis {

/// The heading of the lines that are not the system's.
inline constexpr std::u16string_view addOnHeading = u"❌异常或越狱插件的可执行库";

/// What the result screen shows of each sort of lines.
struct Messages {
    std::u16string system;
    std::u16string addOns;
};

/// System lines end with a line feed, the others with an empty line.
[[nodiscard]] Messages messagesOf(const LibraryLines& lines);

/// The screen's whole text: what the lines mean, then both sorts under their headings.
[[nodiscard]] std::u16string report(std::u16string_view system, std::u16string_view addOns);

} // namespace wentra::analysis
