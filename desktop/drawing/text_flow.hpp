// Text of any length in lines, set piece by piece as it is looked at, and set anew where it
// changes.
#pragma once

#include "desktop/drawing/text_layout.hpp"

#include <optional>
#include <string>
#include <vector>

namespace desktop {

/// The text that flows, which may be very long.
class TextSource {
public:
    virtual ~TextSource() = default;
    [[nodiscard]] virtual std::size_t length() const = 0;
    /// The units of a stretch that lies within the text.
    [[nodiscard]] virtual std::u16string units(Stretch stretch) const = 0;
    /// The looks of a stretch, counted from its start; for an empty stretch, the look of what would
    /// be written there.
    [[nodiscard]] virtual std::vector<TextRun> runs(Stretch stretch) const = 0;
};

/// Sets a long text in blocks of some thousand units and keeps those that were looked at, so that
/// an edit costs a block or two. Places are in points from the top left corner of the first line.
/// In a text longer than `exactLength`, what was never looked at has an estimated size. One
/// thread.
class TextFlow {
public:
    /// The source must outlive the flow.
    explicit TextFlow(const TextSource& source) : source_(source) {}
    TextFlow(const TextFlow&) = delete;
    TextFlow& operator=(const TextFlow&) = delete;

    /// Sets everything anew when these are others than before.
    void setWidth(double width);
    void setAlignment(TextAlignment alignment);
    /// All in one line, which ends at the latest at `longestLine` units.
    void setSingleLine();
    /// The source changed: what was in `former` is now `length` units long. Costs next to nothing:
    /// changes are gathered until a place is asked for.
    void replaced(Stretch former, std::size_t length);
    /// The source changed altogether.
    void reset();

    /// The width of the widest line, and the height of all.
    Size size();
    /// 2 points wide, before the unit; units beyond the text stand at its end.
    Rectangle caret(std::size_t unit);
    /// The caret position nearest to the point.
    std::size_t unitAt(Point point);
    /// The caret position on the line that is so many lines below (negative: above), at about the
    /// horizontal place `x`; the text's start or end when there is no such line.
    std::size_t unitInLine(std::size_t unit, long linesBelow, double x);
    /// The line with the caret before this unit, its line break included.
    Stretch lineAt(std::size_t unit);
    /// What a selection covers between two heights, a rectangle for each line.
    std::vector<Rectangle> rectangles(Stretch units, double top, double bottom);
    /// Draws the lines inside of the context's clip.
    void draw(cairo_t* context, Point origin);

    static constexpr std::size_t exactLength = 20000;
    static constexpr std::size_t longestLine = 20000;

private:
    struct Block {
        std::size_t length = 0;
        /// Whether it ends inside of a paragraph. Where it ends is a guess until it was set once:
        /// from then on it ends with a line.
        bool open = false;
        bool wasSet = false;
        double width = 0;
        double height = 0;
        std::optional<TextLayout> layout = {};
    };
    struct Edit {
        Stretch former;
        std::size_t length;
    };
    struct Place {
        std::size_t index = 0;
        std::size_t start = 0;
        double top = 0;
    };

    void prepare();
    void apply(const Edit& edit);
    [[nodiscard]] std::vector<Block> split(Stretch stretch) const;
    [[nodiscard]] Size estimate(std::u16string_view text, std::size_t start) const;
    [[nodiscard]] Stretch unitsOf(const Place& place) const;
    [[nodiscard]] TextFrame frame() const;
    [[nodiscard]] TextLayout set(Stretch stretch) const;
    const TextLayout& layout(const Place& place);
    void passOn(const Place& place, std::size_t kept);
    void replaceBlocks(std::size_t first, std::size_t end, Stretch stretch);
    void forgetFarFrom(std::size_t index);
    [[nodiscard]] bool isLast(const Place& place) const {
        return place.index + 1 == blocks_.size();
    }
    [[nodiscard]] Place next(const Place& place) const;
    Place blockWith(std::size_t unit);
    Place blockAtHeight(double y);

    const TextSource& source_;
    double width_ = TextFrame::unlimited;
    TextAlignment alignment_ = TextAlignment::natural;
    bool singleLine_ = false;
    std::vector<Block> blocks_;
    /// All that has changed since the blocks were made.
    std::optional<Edit> edit_;
};

} // namespace desktop
