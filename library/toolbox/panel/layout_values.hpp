// How the panel's stored sizes grow, shrink and return to what they were.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace wentra::toolbox {

/// The preferences that take part, by name (UTF-8).
inline constexpr std::array<std::string_view, 5> layoutKeys{
    "上排功能位置", "下排功能位置", "三排功能位置", "悬浮窗口高度", "表格窗口高度"};

/// One of them: what is stored now, none when nothing is, and what was at first.
struct LayoutValue {
    std::optional<long long> current;
    long long original = 0;
};

/// In the order of `layoutKeys`.
using LayoutValues = std::array<LayoutValue, layoutKeys.size()>;
/// What to store; none leaves the key as it is.
using NewLayout = std::array<std::optional<long long>, layoutKeys.size()>;

/// Enlarged by 180 points, or, when the first row is lower than at first, as everything was.
/// Nothing without a stored first row, which tells the two apart.
[[nodiscard]] NewLayout toggledLayout(const LayoutValues& values);

/// Shrunk by 180 points, or as it was where more than that had been added. A grid that is lower
/// than 142 points, or has no stored height, changes nothing.
[[nodiscard]] NewLayout shrunkLayout(const LayoutValues& values);

} // namespace wentra::toolbox
