// How much room a text takes in lines, guessed from its characters one by one.
#pragma once

#include "desktop/drawing/font.hpp"

#include <cstddef>
#include <string_view>

namespace desktop {

struct LineEstimate {
    std::size_t lines = 0;
    /// Of the widest line, in points.
    double width = 0;
};

/// The lines that the text takes when they end at blanks and at `width` points: right but for the
/// rules of scripts and for how characters change their neighbours' widths. A line break at the
/// end begins no line. Nothing is set in a width that is zero, negative or NaN. Any thread.
[[nodiscard]] LineEstimate estimateLines(std::u16string_view text, const Font& font, double width);

} // namespace desktop
