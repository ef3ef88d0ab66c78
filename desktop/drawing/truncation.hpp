// Sets all of the remaining text in one line, with an ellipsis in place of what does not fit.
#pragma once

#include "desktop/drawing/passage.hpp"

#include <memory>

namespace desktop {

struct TruncatedLine {
    std::shared_ptr<const Passage> passage;
    /// Whether text is missing.
    bool truncated = false;
};

/// The text from `start` on, in a line of at most `width` points if at all possible. When
/// truncating the tail, and when clipping, the line ends with its paragraph; otherwise line breaks
/// count as spaces.
TruncatedLine truncatedLine(const StyledText& text, std::size_t start, double width,
                            LineBreakMode mode);

} // namespace desktop
