// Breaks text into lines stretch by stretch, and truncates the last line there is room for.
#include "desktop/drawing/typesetter.hpp"

#include "desktop/drawing/font_machinery.hpp"
#include "desktop/drawing/truncation.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

// Stretches are made to hold a number of lines between these: what a stretch costs grows with the
// product of its length and its lines, yet the last of its lines is set anew in the next one.
constexpr std::size_t firstStretch = 256;
constexpr std::size_t shortestStretch = 64;
constexpr int fewLines = 4;
constexpr int manyLines = 16;
// Text of more lines is cut off: it could be neither seen nor kept in memory.
constexpr std::size_t mostLines = 100000;
// Fractions of points that a frame may be too low by without losing a line.
constexpr double heightTolerance = 0.01;

bool truncates(LineBreakMode mode) {
    return mode != LineBreakMode::wordWrapping && mode != LineBreakMode::characterWrapping;
}

class Typesetter {
public:
    Typesetter(const StyledText& text, const TextFrame& frame)
        : text_(text), frame_(frame), width_(std::min(frame.width, TextFrame::widestLine)),
          stretchLength_(std::min(firstStretch, text.longestStretch())) {}

    SetText set() && {
        if (text_.size() > 0 && width_ > 0) {
            while (!finished_) {
                setNextLines();
            }
            align();
        }
        return std::move(result_);
    }

private:
    // Not between the halves of a surrogate pair or of a line break.
    std::size_t stretchEnd(std::size_t length) const {
        if (length >= text_.size() - next_) {
            return text_.size();
        }
        const std::size_t end = next_ + length;
        const char16_t unit = text_.text()[end];
        const bool splits = (unit >= 0xDC00 && unit <= 0xDFFF) || unit == '\n';
        return splits ? end - 1 : end;
    }

    void setNextLines() {
        if (isLastLine(next_) && truncates(frame_.lineBreakMode)) {
            return setLastLine();
        }
        const Stretch stretch{next_, stretchEnd(stretchLength_)};
        const auto passage = std::make_shared<const Passage>(
            text_, stretch, std::nullopt,
            Breaking{.width = width_,
                     .atAnyCharacter = frame_.lineBreakMode == LineBreakMode::characterWrapping,
                     .justified = frame_.alignment == TextAlignment::justified});
        const bool complete = stretch.end == text_.size();
        const int count = pango_layout_get_line_count(passage->layout());
        const bool canGrow = stretchLength_ < text_.longestStretch();
        adaptStretches(count);
        if (!complete && count == 1 && canGrow) {
            return;
        }
        // The end of an incomplete stretch is set anew, with what follows it.
        addLines(passage, stretch, complete ? count : std::max(count - 1, 1));
        finished_ = finished_ || (complete && next_ == text_.size());
    }

    void adaptStretches(int lineCount) {
        if (lineCount < fewLines) {
            stretchLength_ = std::min(2 * stretchLength_, text_.longestStretch());
        } else if (lineCount > manyLines) {
            stretchLength_ = std::max(stretchLength_ / 2, shortestStretch);
        }
    }

    void addLines(const std::shared_ptr<const Passage>& passage, Stretch stretch, int count) {
        GSList* node = pango_layout_get_lines_readonly(passage->layout());
        for (int index = 0; index < count && !finished_; ++index, node = node->next) {
            if (isLastLine(next_)) {
                if (truncates(frame_.lineBreakMode)) {
                    return setLastLine();
                }
                finished_ = true;
            }
            const auto* following =
                node->next ? static_cast<PangoLayoutLine*>(node->next->data) : nullptr;
            const std::size_t end =
                following ? passage->unitAt(following->start_index) : stretch.end;
            addLine(passage, static_cast<PangoLayoutLine*>(node->data), {next_, end});
            next_ = end;
        }
        result_.truncated = finished_ && next_ < text_.size();
    }

    void setLastLine() {
        TruncatedLine line = truncatedLine(text_, next_, width_, frame_.lineBreakMode);
        auto* shaped = pango_layout_get_line_readonly(line.passage->layout(), 0);
        addLine(line.passage, shaped, {next_, text_.size()});
        Line& last = result_.lines.back();
        last.clipped = last.width > width_;
        last.width = std::min(last.width, width_);
        result_.truncated = line.truncated || last.clipped;
        next_ = text_.size();
        finished_ = true;
    }

    // Whether there is room for the line that starts here, but for none of its kind below it.
    bool isLastLine(std::size_t start) const {
        const std::size_t limit = frame_.maximumLines == 0 ? mostLines : frame_.maximumLines;
        if (result_.lines.size() + 1 >= std::min(limit, mostLines)) {
            return true;
        }
        const double lineHeight =
            measureLine(text_, {start, std::min(start + 1, text_.size())}).height;
        return nextTop() + 2 * lineHeight + spacing() > frame_.height + heightTolerance ||
               std::isnan(frame_.height);
    }

    void addLine(const std::shared_ptr<const Passage>& passage, PangoLayoutLine* shaped,
                 Stretch units) {
        PangoRectangle logical;
        pango_layout_line_get_extents(shaped, nullptr, &logical);
        const LineMeasure measure = measureLine(text_, units);
        result_.lines.push_back({.passage = passage,
                                 .shaped = shaped,
                                 .units = units,
                                 .top = nextTop(),
                                 .width = static_cast<double>(logical.width) / PANGO_SCALE,
                                 .height = measure.height,
                                 .ascent = measure.ascent});
    }

    double nextTop() const {
        if (result_.lines.empty()) {
            return 0;
        }
        const Line& last = result_.lines.back();
        return last.top + last.height + spacing();
    }

    double spacing() const {
        return frame_.lineSpacing > 0 && std::isfinite(frame_.lineSpacing) ? frame_.lineSpacing : 0;
    }

    void align() {
        double available = 0;
        for (const Line& line : result_.lines) {
            available = std::max(available, line.width);
        }
        if (std::isfinite(frame_.width)) {
            available = frame_.width;
        }
        for (Line& line : result_.lines) {
            line.x = std::max(available - line.width, 0.0) * leadingShare(line);
        }
    }

    // How much of a line's free room is left of it.
    double leadingShare(const Line& line) const {
        switch (frame_.alignment) {
        case TextAlignment::center:
            return 0.5;
        case TextAlignment::right:
            return 1;
        case TextAlignment::left:
            return 0;
        case TextAlignment::natural:
        case TextAlignment::justified:
            break;
        }
        return pango_layout_line_get_resolved_direction(line.shaped) == PANGO_DIRECTION_RTL ? 1 : 0;
    }

    const StyledText& text_;
    const TextFrame& frame_;
    double width_;
    std::size_t stretchLength_;
    std::size_t next_ = 0;
    bool finished_ = false;
    SetText result_;
};

} // namespace

SetText typeset(const StyledText& text, const TextFrame& frame) {
    return Typesetter(text, frame).set();
}

LineMeasure measureLine(const StyledText& text, Stretch units) {
    double ascent = 0;
    double descent = 0;
    const Font* measured = nullptr;
    for (const TextRun& run : text.runs(units.start, units.end)) {
        if (measured && *measured == run.font) {
            continue;
        }
        measured = &run.font;
        const FontMetrics font = metrics(run.font);
        ascent = std::max(ascent, font.ascender);
        descent = std::max(descent, -font.descender);
    }
    return {.height = ascent + descent, .ascent = ascent};
}

} // namespace desktop
