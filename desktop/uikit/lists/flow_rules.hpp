// Where the items of a flow layout lie: in lines, like words on a page.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "desktop/uikit/lists/item_index.hpp"

#include <span>
#include <vector>

namespace desktop {

/// A section to be laid out in lines from left to right, the lines one below the other. Points.
struct FlowSection {
    std::vector<CGSize> items;
    UIEdgeInsets inset;
    double itemSpacing = 0; ///< at least, between the items of a line
    double lineSpacing = 0; ///< at least, between lines
    bool isGrid = false;    ///< all items are of one size: the last line keeps to the columns
};

/// Full lines are spread over the width, with equal gaps; a section's last line begins at the left.
/// Items lie in the middle of their line's height, and one that fills a line by itself in the
/// middle of its width. Measures that are negative or NaN count as 0.
class FlowPlacement {
public:
    FlowPlacement() = default;
    FlowPlacement(std::span<const FlowSection> sections, double width);

    [[nodiscard]] double height() const { return height_; }
    [[nodiscard]] bool contains(ItemIndex index) const;
    /// The item must exist.
    [[nodiscard]] CGRect frame(ItemIndex index) const;
    /// What meets the rectangle, in order: found in the time that its lines take, not the whole.
    [[nodiscard]] std::vector<ItemIndex> itemsIn(CGRect rect) const;

private:
    struct Line {
        double top;
        double bottom;
        std::size_t first; ///< in `frames_`
        std::size_t end;
        long section;
    };

    void place(const FlowSection& section, double width);
    /// Sets the items from `first` to `end` in a line at `top`.
    void setLine(const FlowSection& section, std::size_t first, std::size_t end, double top,
                 double width);

    std::vector<CGRect> frames_;
    std::vector<std::size_t> starts_; // of the sections in `frames_`
    std::vector<Line> lines_;
    double height_ = 0;
};

} // namespace desktop
