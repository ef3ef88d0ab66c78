// Adds up the widths of characters, each of which is shaped once.
#include "desktop/drawing/line_estimate.hpp"

#include "desktop/drawing/passage.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <deque>
#include <utility>
#include <vector>

namespace desktop {
namespace {

/// Widths are whole numbers of this part of a point: adding them up is exact, and quick.
constexpr double unitsPerPoint = PANGO_SCALE;

class CharacterWidths {
public:
    explicit CharacterWidths(Font font) : font_(std::move(font)), widths_(unitCount, unknown) {}

    [[nodiscard]] const Font& font() const { return font_; }

    std::int64_t of(char16_t unit) {
        std::int32_t& width = widths_[unit];
        if (width == unknown) {
            width = static_cast<std::int32_t>(std::lround(shaped(unit) * unitsPerPoint));
        }
        return width;
    }

private:
    static constexpr std::size_t unitCount = 0x10000;
    static constexpr std::int32_t unknown = -1;

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
    std::vector<std::int32_t> widths_;
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
    explicit Lines(double width)
        : width_(width), room_(static_cast<std::int64_t>(width * unitsPerPoint)) {}

    void add(char16_t unit, std::int64_t width) {
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
        return {lines_, std::min(static_cast<double>(widest_) / unitsPerPoint, width_)};
    }

private:
    /// A line ends on both sides of these.
    static bool isIdeograph(char16_t unit) { return unit >= 0x2E80; }

    /// The word that has no room moves down, unless it began with the line.
    void wrap() {
        const std::int64_t moved = word_ < line_ ? word_ : 0;
        line_ -= moved;
        end();
        line_ = word_ = moved;
    }

    void end() {
        ++lines_;
        widest_ = std::max(widest_, line_);
        line_ = word_ = 0;
        isOpen_ = false;
    }

    double width_;
    std::int64_t room_;
    std::int64_t line_ = 0;
    std::int64_t word_ = 0;
    std::int64_t widest_ = 0;
    std::size_t lines_ = 0;
    bool isOpen_ = false;
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
