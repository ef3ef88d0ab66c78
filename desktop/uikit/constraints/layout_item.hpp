// What constraints relate: attributes of views and layout guides.
#pragma once

#include "desktop/uikit/constraints/linear_solver.hpp"

#include "bindings/uikit/view.hpp"

namespace desktop {

/// The platform's numbers. Text runs from left to right: leading is left.
enum class LayoutAttribute : long {
    none = 0,
    left = 1,
    right = 2,
    top = 3,
    bottom = 4,
    leading = 5,
    trailing = 6,
    width = 7,
    height = 8,
    centerX = 9,
    centerY = 10,
    lastBaseline = 11,
    firstBaseline = 12,
    leftMargin = 13,
    rightMargin = 14,
    topMargin = 15,
    bottomMargin = 16,
    leadingMargin = 17,
    trailingMargin = 18,
    centerXWithinMargins = 19,
    centerYWithinMargins = 20,
};

/// Priorities as the platform counts them.
namespace layout_priority {
inline constexpr float required = 1000;
inline constexpr float compressionResistance = 750;
inline constexpr float labelHugging = 251;
inline constexpr float hugging = 250;
inline constexpr float fittingSize = 50;
} // namespace layout_priority

/// A rectangle whose measures a solver decides, or knows.
struct LayoutBox {
    LinearExpression left;
    LinearExpression top;
    LinearExpression width;
    LinearExpression height;

    [[nodiscard]] LayoutBox inset(UIEdgeInsets insets) const;
    /// Margins and baselines are the caller's to look after: the box is the one they refer to.
    [[nodiscard]] LinearExpression value(LayoutAttribute attribute) const;
};

} // namespace desktop
