// Finds the most text that fits into one line together with an ellipsis.
#include "desktop/drawing/truncation.hpp"

#include <algorithm>
#include <numeric>
#include <vector>

namespace desktop {
namespace {

constexpr std::u16string_view lineBreaks = u"\n\r\u0085\u2028\u2029";

// No more units than this are looked at from either end: characters are hardly narrower than a
// point.
std::size_t fittingUnits(const StyledText& text, double width) {
    return std::min(64 + static_cast<std::size_t>(width), text.longestStretch());
}

bool splitsCharacter(std::u16string_view text, std::size_t unit) {
    return unit > 0 && unit < text.size() && text[unit] >= 0xDC00 && text[unit] <= 0xDFFF;
}

// The stretch that the line is made of, and whether text follows it.
struct Remainder {
    Stretch stretch;
    bool followed = false;
};

Remainder remainder(std::u16string_view text, std::size_t start, LineBreakMode mode) {
    const bool oneParagraph =
        mode == LineBreakMode::truncatingTail || mode == LineBreakMode::clipping;
    if (!oneParagraph) {
        const std::size_t last = text.find_last_not_of(lineBreaks);
        const std::size_t end = last == text.npos ? 0 : last + 1;
        return {{start, std::max(start, end)}, false};
    }
    const std::size_t end = std::min(text.find_first_of(lineBreaks, start), text.size());
    return {{start, end}, text.find_first_not_of(lineBreaks, end) != text.npos};
}

// Which text is left out when so many characters are kept.
class Cut {
public:
    Cut(const StyledText& text, Stretch whole, double width, LineBreakMode mode)
        : mode_(mode), end_(mode == LineBreakMode::truncatingTail ? text.size() : whole.end),
          start_(whole.start) {
        const std::size_t most = std::min(fittingUnits(text, width), whole.end - whole.start);
        Stretch front{whole.start, whole.start + most};
        Stretch back{whole.end - most, whole.end};
        if (splitsCharacter(text.text(), front.end)) {
            --front.end;
        }
        if (splitsCharacter(text.text(), back.start)) {
            ++back.start;
        }
        front_ = positions(text, front);
        back_ = positions(text, back);
    }

    Stretch whole() const { return {start_, end_}; }

    std::size_t mostKept() const { return std::min(front_.size(), back_.size()) - 1; }

    Stretch elided(std::size_t kept) const {
        switch (mode_) {
        case LineBreakMode::truncatingHead:
            return {start_, backStart(kept)};
        case LineBreakMode::truncatingMiddle:
            return {front_[kept - kept / 2], backStart(kept / 2)};
        default:
            return {front_[kept], end_};
        }
    }

private:
    static std::vector<std::size_t> positions(const StyledText& text, Stretch part) {
        return Passage(text, part, std::nullopt, {.singleLine = true}).caretPositions();
    }

    std::size_t backStart(std::size_t kept) const { return back_[back_.size() - 1 - kept]; }

    LineBreakMode mode_;
    std::size_t end_;
    std::size_t start_;
    std::vector<std::size_t> front_;
    std::vector<std::size_t> back_;
};

std::shared_ptr<const Passage> elidedLine(const StyledText& text, const Cut& cut, double width) {
    const auto passage = [&](std::size_t kept) {
        return std::make_shared<const Passage>(text, cut.whole(), cut.elided(kept),
                                               Breaking{.singleLine = true});
    };
    const auto fits = [&](std::size_t kept) {
        const Stretch elided = cut.elided(kept);
        return elided.start < elided.end && passage(kept)->width() <= width;
    };
    std::vector<std::size_t> counts(cut.mostKept());
    std::iota(counts.begin(), counts.end(), std::size_t{1});
    const auto tooMany = std::ranges::partition_point(counts, fits);
    return passage(static_cast<std::size_t>(tooMany - counts.begin()));
}

} // namespace

TruncatedLine truncatedLine(const StyledText& text, std::size_t start, double width,
                            LineBreakMode mode) {
    const Remainder rest = remainder(text.text(), start, mode);
    const std::size_t most = rest.stretch.start + fittingUnits(text, width);
    const Stretch visible{rest.stretch.start, std::min(rest.stretch.end, most)};
    const bool complete = visible.end == rest.stretch.end;
    auto unbroken =
        std::make_shared<const Passage>(text, visible, std::nullopt, Breaking{.singleLine = true});
    if (mode == LineBreakMode::clipping) {
        return {std::move(unbroken), !complete || rest.followed};
    }
    if (complete && !rest.followed && unbroken->width() <= width) {
        return {std::move(unbroken), false};
    }
    return {elidedLine(text, Cut(text, rest.stretch, width, mode), width), true};
}

} // namespace desktop
