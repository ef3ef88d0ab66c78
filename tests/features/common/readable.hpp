// Which texts on the screen cannot be read on what is painted behind them.
#pragma once

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace tests {

/// Red, green, blue and alpha, from 0 to 1.
using Paint = std::array<double, 4>;

/// From "#rrggbbaa"; clear for null.
inline Paint paintOf(const nlohmann::json& text) {
    Paint paint{};
    if (text.is_string()) {
        for (std::size_t part = 0; part < paint.size(); ++part) {
            paint[part] =
                std::stoi(text.get<std::string>().substr(1 + 2 * part, 2), nullptr, 16) / 255.0;
        }
    }
    return paint;
}

/// What is seen of `upper` on an opaque `lower`.
inline Paint over(const Paint& upper, const Paint& lower) {
    Paint seen{0, 0, 0, 1};
    for (std::size_t part = 0; part < 3; ++part) {
        seen[part] = upper[part] * upper[3] + lower[part] * (1 - upper[3]);
    }
    return seen;
}

/// As web pages' rules for accessible content define it: from 1, the same, to 21.
inline double contrast(const Paint& one, const Paint& other) {
    const auto luminance = [](const Paint& paint) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(paint[0]) + 0.7152 * linear(paint[1]) + 0.0722 * linear(paint[2]);
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// Adds the texts of a view's node, and of those in it, whose contrast is too low; and counts all.
inline void findUnreadable(const nlohmann::json& node, Paint behind,
                           std::vector<std::string>& found, std::size_t& texts) {
    if (node["hidden"] == true || node["alpha"] == 0.0 || node.value("enabled", true) == false) {
        return; // what cannot be used may be faint
    }
    constexpr double least = 2.9; // of the platform's own: the title of an action sheet
    behind = over(paintOf(node["backgroundColor"]), behind);
    const std::string text = node.contains("text") && node["text"].is_string() ? node["text"] : "";
    if (!text.empty() && node.contains("textColor")) {
        ++texts;
        if (contrast(over(paintOf(node["textColor"]), behind), behind) < least) {
            found.push_back(text + ": " + node["textColor"].dump() + " in " +
                            node.dump().substr(0, 200));
        }
    }
    for (const auto& child : node["children"]) {
        findUnreadable(child, behind, found, texts);
    }
}

} // namespace tests
