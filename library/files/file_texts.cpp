// Writes sizes and permissions.
#include "library/files/file_texts.hpp"

#include <array>
#include <cstdio>

namespace wentra::files {

std::string sizeText(double bytes) {
    constexpr std::array units{"B", "KB", "MB", "GB"};
    constexpr double step = 1024;
    std::size_t unit = 0;
    while (bytes >= step && unit + 1 < units.size()) {
        bytes /= step;
        ++unit;
    }
    std::array<char, 400> text{}; // the largest double has 309 digits
    std::snprintf(text.data(), text.size(), "%.2f %s", bytes, units[unit]);
    return text.data();
}

std::string permissionsText(unsigned long bits) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04lo", bits);
    return text.data();
}

} // namespace wentra::files
