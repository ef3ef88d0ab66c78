// Answers questions about the lines of a text, and draws them.
#include "desktop/drawing/text_layout.hpp"

#include "desktop/drawing/typesetter.hpp"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace desktop {
namespace {

constexpr double finestPixelsPerPoint = 3;
constexpr double caretWidth = 2;

double roundedUp(double points) {
    constexpr double tolerance = 1e-6;
    return std::ceil(points * finestPixelsPerPoint - tolerance) / finestPixelsPerPoint;
}

double horizontalPlace(const Line& line, std::size_t unit) {
    const int lineEnd = line.shaped->start_index + line.shaped->length;
    const int byte = std::clamp(line.passage->byteAt(unit), line.shaped->start_index, lineEnd);
    int x = 0;
    pango_layout_line_index_to_x(line.shaped, byte, FALSE, &x);
    return line.x + static_cast<double>(x) / PANGO_SCALE;
}

std::size_t unitNear(const Line& line, double x) {
    const double inside = x > line.x ? std::min(x - line.x, TextFrame::widestLine) : 0;
    int byte = 0;
    int trailing = 0;
    pango_layout_line_x_to_index(line.shaped, static_cast<int>(inside * PANGO_SCALE), &byte,
                                 &trailing);
    const char* text = pango_layout_get_text(line.passage->layout());
    const char* place = g_utf8_offset_to_pointer(text + byte, trailing);
    return line.passage->unitAt(static_cast<int>(place - text));
}

/// What lies between those bytes of a line, from left to right, in pairs of edges.
std::vector<int> edgesOf(PangoLayoutLine* line, int from, int to) {
    int* found = nullptr;
    int count = 0;
    pango_layout_line_get_x_ranges(line, from, to, &found, &count);
    std::vector<int> edges(found, found + static_cast<std::ptrdiff_t>(2) * count);
    g_free(found);
    return edges;
}

void drawLine(cairo_t* context, const Line& line, Point origin) {
    cairo_save(context);
    if (line.clipped) {
        cairo_rectangle(context, origin.x + line.x, origin.y + line.top, line.width, line.height);
        cairo_clip(context);
    }
    cairo_move_to(context, origin.x + line.x, origin.y + line.top + line.ascent);
    pango_cairo_show_layout_line(context, line.shaped);
    cairo_restore(context);
}

} // namespace

struct TextLayout::Content {
    SetText set;
    Size size;
    // Where the caret of a text without lines stands.
    LineMeasure empty;

    Content(const StyledText& text, const TextFrame& frame)
        : set(typeset(text, frame)), empty(measureLine(text, {0, 0})) {
        for (const Line& line : set.lines) {
            size.width = std::max(size.width, roundedUp(line.width));
            size.height = roundedUp(line.top + line.height);
        }
    }

    const Line& lineWith(std::size_t unit) const {
        const auto startOf = [](const Line& line) { return line.units.start; };
        const auto after = std::ranges::upper_bound(set.lines, unit, {}, startOf);
        return after == set.lines.begin() ? set.lines.front() : *std::prev(after);
    }

    // The lines that reach below a height begin with this one.
    std::vector<Line>::const_iterator firstBelow(double y) const {
        const auto bottomOf = [](const Line& line) { return line.top + line.height; };
        return std::ranges::upper_bound(set.lines, y, {}, bottomOf);
    }
};

TextLayout::TextLayout(std::u16string_view text, std::span<const TextRun> runs,
                       const TextFrame& frame)
    : content_(std::make_unique<Content>(StyledText(text, runs), frame)) {}

TextLayout::TextLayout(std::u16string_view text, const TextRun& look, const TextFrame& frame)
    : TextLayout(text, std::span(&look, 1), frame) {}

TextLayout::TextLayout(TextLayout&&) noexcept = default;
TextLayout& TextLayout::operator=(TextLayout&&) noexcept = default;
TextLayout::~TextLayout() = default;

Size TextLayout::size() const { return content_->size; }

double TextLayout::firstBaseline() const {
    const auto& lines = content_->set.lines;
    return lines.empty() ? 0 : lines.front().top + lines.front().ascent;
}

double TextLayout::lastBaseline() const {
    const auto& lines = content_->set.lines;
    return lines.empty() ? 0 : lines.back().top + lines.back().ascent;
}

std::size_t TextLayout::lineCount() const { return content_->set.lines.size(); }

Rectangle TextLayout::lineRectangle(std::size_t index) const {
    if (index >= lineCount()) {
        return {};
    }
    const Line& line = content_->set.lines[index];
    return {line.x, line.top, line.width, line.height};
}

Stretch TextLayout::lineUnits(std::size_t index) const {
    const auto& lines = content_->set.lines;
    if (index < lines.size()) {
        return lines[index].units;
    }
    const std::size_t end = lines.empty() ? 0 : lines.back().units.end;
    return {end, end};
}

std::vector<Rectangle> TextLayout::selection(std::size_t index, Stretch units) const {
    if (index >= lineCount()) {
        return {};
    }
    const Line& line = content_->set.lines[index];
    const int first = line.shaped->start_index;
    const int last = first + line.shaped->length;
    const auto byte = [&](std::size_t unit) {
        return std::clamp(line.passage->byteAt(unit), first, last);
    };
    // Pango aligns lines in its own way, which is not ours.
    const std::vector<int> whole = edgesOf(line.shaped, first, last);
    const int left = whole.empty() ? 0 : whole.front();
    const std::vector<int> edges = edgesOf(line.shaped, byte(units.start), byte(units.end));
    std::vector<Rectangle> boxes;
    for (std::size_t edge = 0; edge + 1 < edges.size(); edge += 2) {
        const double x = line.x + static_cast<double>(edges[edge] - left) / PANGO_SCALE;
        const double width = static_cast<double>(edges[edge + 1] - edges[edge]) / PANGO_SCALE;
        constexpr double touching = 0.01;
        if (!boxes.empty() && x <= boxes.back().x + boxes.back().width + touching) {
            boxes.back().width = x + width - boxes.back().x;
        } else {
            boxes.push_back({x, line.top, width, line.height});
        }
    }
    return boxes;
}

bool TextLayout::isRightToLeft(std::size_t index) const {
    return index < lineCount() && pango_layout_line_get_resolved_direction(
                                      content_->set.lines[index].shaped) == PANGO_DIRECTION_RTL;
}

std::size_t TextLayout::lineOf(std::size_t unit) const {
    const auto& lines = content_->set.lines;
    return lines.empty() ? 0 : static_cast<std::size_t>(&content_->lineWith(unit) - lines.data());
}

bool TextLayout::isTruncated() const { return content_->set.truncated; }

Rectangle TextLayout::caretRectangle(std::size_t index) const {
    if (lineCount() == 0) {
        return {0, 0, caretWidth, content_->empty.height};
    }
    const Line& line = content_->lineWith(index);
    return {horizontalPlace(line, index), line.top, caretWidth, line.height};
}

std::size_t TextLayout::indexAt(Point point) const {
    if (lineCount() == 0) {
        return 0;
    }
    const auto line = content_->firstBelow(point.y);
    return unitNear(line == content_->set.lines.end() ? content_->set.lines.back() : *line,
                    point.x);
}

void TextLayout::draw(cairo_t* context, Point origin) const {
    if (!std::isfinite(origin.x) || !std::isfinite(origin.y)) {
        return;
    }
    Rectangle clip;
    double right = 0;
    double bottom = 0;
    cairo_clip_extents(context, &clip.x, &clip.y, &right, &bottom);
    const auto end = content_->set.lines.end();
    for (auto line = content_->firstBelow(clip.y - origin.y); line != end; ++line) {
        if (line->top > bottom - origin.y) {
            break;
        }
        drawLine(context, *line, origin);
    }
}

std::size_t TextLayout::unknownGlyphCount() const {
    std::size_t count = 0;
    const PangoLayout* previous = nullptr;
    for (const Line& line : content_->set.lines) {
        PangoLayout* layout = line.passage->layout();
        if (layout != previous) {
            count += static_cast<std::size_t>(pango_layout_get_unknown_glyphs_count(layout));
        }
        previous = layout;
    }
    return count;
}

} // namespace desktop
