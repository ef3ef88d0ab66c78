// A text of which every unit belongs to exactly one run.
#pragma once

#include "desktop/drawing/text_layout.hpp"

#include <vector>

namespace desktop {

/// Views the text, which must outlive it; owns its runs.
class StyledText {
public:
    StyledText(std::u16string_view text, std::span<const TextRun> runs);

    std::u16string_view text() const { return text_; }
    std::size_t size() const { return text_.size(); }

    /// The runs that have units between `start` and `end`; for an empty stretch, the run at it.
    /// Never empty; the first and last may reach beyond the stretch.
    std::span<const TextRun> runs(std::size_t start, std::size_t end) const;

    /// How many units may be shaped at once without their width getting near to the bounds of
    /// Pango's integers; at least 1.
    std::size_t longestStretch() const { return longestStretch_; }

private:
    std::u16string_view text_;
    std::vector<TextRun> runs_;
    std::size_t longestStretch_ = 0;
};

} // namespace desktop
