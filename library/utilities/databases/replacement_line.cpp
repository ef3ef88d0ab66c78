// Takes lines apart and puts them together.
#include "library/utilities/databases/replacement_line.hpp"

#include "library/common/fixed_point.hpp"

#include <cstdlib>

namespace wentra::utilities {

std::optional<TextReplacement> replacementIn(std::string_view line) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view rest = line.substr(blank + 1);
    return TextReplacement{std::string(line.substr(0, blank)),
                           std::string(rest.substr(0, rest.find(' ')))};
}

std::string lineOf(std::string_view phrase, std::string_view shortcut) {
    return std::string(phrase).append(" ").append(shortcut).append("\n\n");
}

std::string timeStamp(double moment) {
    // Not the reference date's 978307200: the stamps lie 3200 seconds ahead of it on purpose.
    constexpr double offset = 978304000;
    constexpr int places = 6;
    // Through text and back, which leaves whole microseconds.
    const double whole = std::strtod(fixedPoint(moment, places).c_str(), nullptr);
    return fixedPoint(whole - offset, places);
}

} // namespace wentra::utilities
