// What makes the lines of a crash report readable.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace wentra::analysis {

/// Every occurrence of one text gives way to another.
struct Replacement {
    std::u16string_view sought;
    std::u16string_view put;
};

// Reports are JSON, printed with a blank before and after each colon or with none.
inline constexpr Replacement backslashes{u"\\", u""};
inline constexpr Replacement nameKey{u"\"name\"", u"名称"};
inline constexpr Replacement spacedColon{u"   :   ", u"："};
inline constexpr Replacement pathKey{u"\"path\"", u"路径"};
inline constexpr Replacement abortNote{u"  \"asi\" : {\"libsystem_c.dylib\":[\"abort() called\"]},",
                                       u""};
inline constexpr Replacement quoteComma{u"\",", u"\""};

/// The lines with the separator, which ends in a line feed, behind each, after these replacements
/// one after the other: their order matters. None of them reaches across the end of a line.
[[nodiscard]] std::u16string cleaned(std::span<const std::u16string_view> lines,
                                     std::u16string_view separator,
                                     std::span<const Replacement> steps);

} // namespace wentra::analysis
