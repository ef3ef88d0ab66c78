// Adds up the widths of characters, each of which is shaped once.
#include "desktop/drawing/line_estimate.hpp"

#include "desktop/drawing/passage.hpp"

#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>
#include <utility>
#include <vector>

namespace desktop {
namespace {

class CharacterWidths {
public:
    explicit CharacterWidths(Font font) : font_(std::move(font)), widths_(unitCount, unknown) {}

    [[nodiscard]] const Font& font() const { return font_; }

    double of(char16_t unit) {
        float& width = widths_[unit];
        if (std::isnan(width)) {
            width = static_cast<float>(shaped(unit));
        }
        return width;
    }

private:
    static constexpr std::size_t unitCount = 0x10000;
    static constexpr float unknown = std::numeric_limits<float>::quiet_NaN();

    /// A surrogate pair counts as the width of its first half, which is that of U+FFFD.
    [[nodiscard]] double shaped(char16_t unit) const {
        if (unit >= 0xDC00 && unit <= 0xDFFF) {
            return 0;
        }
        const TextRun look{.font = font_};
        const StyledText text({&unit, 1}, {&look, 1});
        return Passage(text, {0, 1}, std::nullopt, {.singleLine = true}).width();
    }

    Font font_;
    std::vector<float> widths_;
};

/// Those of the fonts that were asked about last.
CharacterWidths& widthsIn(const Font& font) {
    constexpr std::size_t mostFonts = 8;
    thread_local std::deque<CharacterWidths> known;
    const auto found = std::ranges::find(known, font, &CharacterWidths::font);
    if (found != known.end()) {
        return *found;
    }
    if (known.size() == mostFonts) {
        known.pop_front();
    }
    return known.emplace_back(font);
}

/// Fills lines character by character.
class Lines {
public:
    explicit Lines(double width) : room_(width) {}

    void add(char16_t unit, double width) {
        if (unit == u'\n') {
            return end();
        }
        const bool isBlank = unit == u' ' || unit == u'\t';
        if (!isBlank && line_ > 0 && line_ + width > room_) {
            wrap();
        }
        line_ += width;
        word_ = isBlank || isIdeograph(unit) ? 0 : word_ + width;
        isOpen_ = true;
    }

    LineEstimate finished() {
        if (isOpen_) {
            end();
        }
        return estimate_;
    }

private:
    /// A line ends on both sides of these.
    static bool isIdeograph(char16_t unit) { return unit >= 0x2E80; }

    /// The word that has no room moves down, unless it began with the line.
    void wrap() {
        const double moved = word_ < line_ ? word_ : 0;
        line_ -= moved;
        end();
        line_ = word_ = moved;
    }

    void end() {
        ++estimate_.lines;
        estimate_.width = std::max(estimate_.width, std::min(line_, room_));
        line_ = word_ = 0;
        isOpen_ = false;
    }

    double room_;
    double line_ = 0;
    double word_ = 0;
    bool isOpen_ = false;
    LineEstimate estimate_;
};

} // namespace

LineEstimate estimateLines(std::u16string_view text, const Font& font, double width) {
    if (!(width > 0)) {
        return {};
    }
    CharacterWidths& widths = widthsIn(font);
    Lines lines(std::min(width, TextFrame::widestLine));
    for (const char16_t unit : text) {
        lines.add(unit, widths.of(unit));
    }
    return lines.finished();
}

} // namespace desktop
