// Sets text in lines: measures it, draws it, and relates its characters to places.
#pragma once

#include "desktop/drawing/colour.hpp"
#include "desktop/drawing/font.hpp"
#include "desktop/drawing/geometry.hpp"

#include <cairo.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace desktop {

enum class TextAlignment { natural, left, center, right, justified };

/// The truncating modes put one ellipsis into the last line that there is room for; `clipping`
/// cuts that line off at the width. The lines before wrap at words.
enum class LineBreakMode {
    wordWrapping,
    characterWrapping,
    clipping,
    truncatingHead,
    truncatingTail,
    truncatingMiddle,
};

/// UTF-16 units from `start` up to `end`.
struct Stretch {
    std::size_t start = 0;
    std::size_t end = 0;
    bool operator==(const Stretch&) const = default;
};

/// A stretch of text that looks the same throughout.
struct TextRun {
    static constexpr std::size_t toTheEnd = std::numeric_limits<std::size_t>::max();

    /// In UTF-16 units.
    std::size_t start = 0;
    std::size_t length = toTheEnd;
    Font font = {};
    Colour colour = {};
    std::optional<Colour> background = {};
    bool underline = false;
    bool strikethrough = false;
};

/// The room that text has and how it is to fill it; points.
struct TextFrame {
    static constexpr double unlimited = std::numeric_limits<double>::infinity();

    /// Nothing is set in a width that is zero, negative or NaN. Lines end at the latest at
    /// `widestLine`.
    double width = unlimited;
    /// Lines that do not fit are left out, except for the first.
    double height = unlimited;
    TextAlignment alignment = TextAlignment::natural;
    LineBreakMode lineBreakMode = LineBreakMode::truncatingTail;
    /// 0: any number.
    std::size_t maximumLines = 0;
    /// Added between lines.
    double lineSpacing = 0;

    static constexpr double widestLine = 20000;
};

/// Text set in lines. The constructor does all of the work; it copies what it needs of the text.
/// Lone surrogates are drawn as U+FFFD and control characters not at all. Places are in points,
/// relative to the top left corner of the frame. May be made on any thread, and used on the thread
/// that made it.
class TextLayout {
public:
    /// Runs are in ascending order and do not overlap (what overlaps an earlier run is ignored);
    /// text outside of all runs is black in the system font.
    TextLayout(std::u16string_view text, std::span<const TextRun> runs, const TextFrame& frame);
    /// All of the text in one look.
    TextLayout(std::u16string_view text, const TextRun& look, const TextFrame& frame);
    TextLayout(TextLayout&&) noexcept;
    TextLayout& operator=(TextLayout&&) noexcept;
    ~TextLayout();

    /// The width of the widest line and the height of all lines, rounded up to a third of a point.
    Size size() const;
    /// From the top to the first line's baseline; 0 without lines.
    double firstBaseline() const;
    double lastBaseline() const;
    /// Empty text has no line.
    std::size_t lineCount() const;
    /// Where a line's text is; empty for a line that does not exist.
    Rectangle lineRectangle(std::size_t line) const;
    /// The UTF-16 units whose carets stand on a line, its line break included; an empty stretch at
    /// the end for a line that does not exist.
    Stretch lineUnits(std::size_t line) const;
    /// The line that the caret before this unit stands on; 0 without lines.
    std::size_t lineOf(std::size_t unit) const;
    /// What units cover of a line, from left to right: several pieces where they are not in one,
    /// since the text's direction changes between them.
    std::vector<Rectangle> selection(std::size_t index, Stretch units) const;
    /// Whether a line is read from right to left, as a whole.
    bool isRightToLeft(std::size_t index) const;
    /// Whether text was left out at the end or replaced by an ellipsis.
    bool isTruncated() const;

    /// Where the caret stands before the UTF-16 unit (the text's length: behind the last one), 2
    /// points wide. Positions beyond the text that was set stand at its end.
    Rectangle caretRectangle(std::size_t index) const;
    /// The caret position nearest to a point, in UTF-16 units; never inside of a character.
    std::size_t indexAt(Point point) const;

    /// Draws with the frame's top left corner at `origin`; lines outside of the clip are skipped.
    void draw(cairo_t* context, Point origin) const;

    /// How many characters no installed font has a glyph for.
    std::size_t unknownGlyphCount() const;

private:
    struct Content;
    std::unique_ptr<Content> content_;
};

} // namespace desktop
