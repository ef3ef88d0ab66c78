// Where the items of a flow layout lie: in lines, like words on a page.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "desktop/uikit/lists/item_index.hpp"

#include <variant>
#include <vector>

namespace desktop {

/// A section to be laid out in lines from left to right, the lines one below the other. Points.
struct FlowSection {
    std::vector<CGSize> items; ///< their sizes, unless they are a grid
    std::size_t gridItems = 0; ///< how many items of one size: the last line keeps to the columns
    CGSize gridItemSize;
    UIEdgeInsets inset;
    double itemSpacing = 0; ///< at least, between the items of a line
    double lineSpacing = 0; ///< at least, between lines
};

/// Items of one size in columns: found by arithmetic, however many there are.
class FlowGrid {
public:
    FlowGrid(const FlowSection& section, double width);

    [[nodiscard]] std::size_t count() const { return count_; }
    [[nodiscard]] double height() const;
    /// From the section's top left corner, as in all of these.
    [[nodiscard]] CGRect frame(std::size_t item) const;
    /// Those of the lines that meet the heights, in order: from the first up to the second.
    [[nodiscard]] std::pair<std::size_t, std::size_t> linesIn(double top, double bottom) const;

    friend bool operator==(const FlowGrid&, const FlowGrid&) = default;

private:
    std::size_t count_;
    std::size_t columns_;
    std::size_t lines_;
    CGSize item_;
    CGPoint origin_;
    double gap_;
    double pitch_; // from line to line
    double indent_ = 0;
    double bottom_;
};

/// Items of different sizes, as many in a line as it has room for.
class FlowLines {
public:
    FlowLines(const FlowSection& section, double width);

    [[nodiscard]] std::size_t count() const { return frames_.size(); }
    [[nodiscard]] double height() const { return height_; }
    [[nodiscard]] CGRect frame(std::size_t item) const { return frames_[item]; }
    [[nodiscard]] std::pair<std::size_t, std::size_t> linesIn(double top, double bottom) const;

private:
    struct Line {
        double top;
        double bottom;
        std::size_t first;
        std::size_t end;
    };

    /// Sets the items from `first` to `end` in a line below what is there.
    void setLine(const FlowSection& section, std::size_t first, std::size_t end, double available);

    std::vector<CGRect> frames_;
    std::vector<Line> lines_;
    double height_;
};

/// Full lines are spread over the width, with equal gaps; a section's last line begins at the left.
/// Items lie in the middle of their line's height, and one that fills a line by itself in the
/// middle of its width. Measures that are negative or NaN count as 0. Neighbouring grids that are
/// alike take no more room in memory than one.
class FlowPlacement {
public:
    explicit FlowPlacement(double width = 0) : width_(width) {}
    /// Puts the section below those that are there.
    void add(const FlowSection& section);

    [[nodiscard]] double height() const { return height_; }
    [[nodiscard]] bool contains(ItemIndex index) const;
    /// The item must exist.
    [[nodiscard]] CGRect frame(ItemIndex index) const;
    /// What meets the rectangle, in order: found in the time that its lines take, not the whole.
    [[nodiscard]] std::vector<ItemIndex> itemsIn(CGRect rect) const;

private:
    /// Sections that are alike.
    struct Run {
        std::variant<FlowGrid, FlowLines> section;
        double top;
        long first;
        long end;

        [[nodiscard]] double height() const;
        [[nodiscard]] double topOf(long index) const;
        [[nodiscard]] double bottom() const { return topOf(end); }
        [[nodiscard]] std::size_t itemCount() const;
        [[nodiscard]] CGRect frame(ItemIndex index) const;
        void collect(CGRect rect, std::vector<ItemIndex>& found) const;
        void collectOf(long index, CGRect rect, std::vector<ItemIndex>& found) const;
    };

    [[nodiscard]] const Run* runWith(long section) const;

    std::vector<Run> runs_;
    double width_;
    double height_ = 0;
};

} // namespace desktop
