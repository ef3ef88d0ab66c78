// Fills a frame with lines of styled text.
#pragma once

#include "desktop/drawing/passage.hpp"

#include <memory>
#include <vector>

namespace desktop {

/// A line in its place; points, relative to the frame.
struct Line {
    std::shared_ptr<const Passage> passage;
    /// Owned by the passage's layout.
    PangoLayoutLine* shaped = nullptr;
    /// The units whose carets stand on this line, its line break included.
    Stretch units;
    double x = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    /// From the top to the baseline.
    double ascent = 0;
    /// Whether it is cut off at the frame's width.
    bool clipped = false;
};

struct SetText {
    std::vector<Line> lines;
    bool truncated = false;
};

/// Text is shaped in stretches of bounded length, and not beyond what the frame has room for.
SetText typeset(const StyledText& text, const TextFrame& frame);

/// The height and the ascent that fonts give to a line with these units.
struct LineMeasure {
    double height = 0;
    double ascent = 0;
};
LineMeasure measureLine(const StyledText& text, Stretch units);

} // namespace desktop
