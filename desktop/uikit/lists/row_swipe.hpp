// A row that is swiped to the left, and the buttons behind it.
#pragma once

#include "desktop/uikit/lists/item_index.hpp"
#include "desktop/uikit/lists/row_actions.hpp"

namespace desktop {

/// Plain state of one row of a table; the buttons tell the table by `chooseRowAction:`. Main
/// thread.
class RowSwipe {
public:
    RowSwipe(ItemIndex row, RowActions actions, ui::View table);
    RowSwipe(const RowSwipe&) = delete;
    RowSwipe& operator=(const RowSwipe&) = delete;
    ~RowSwipe();

    [[nodiscard]] ItemIndex row() const { return row_; }
    [[nodiscard]] const RowAction& action(std::size_t index) const {
        return actions_.list.at(index);
    }
    /// Points that the row has been moved to the left.
    [[nodiscard]] double offset() const { return offset_; }
    /// Moves the row, never to the right of its place.
    void moveTo(double offset);
    /// Where it stays open with all its buttons shown.
    [[nodiscard]] double openOffset() const;
    /// Whether a finger that has moved it so far, with that velocity in points a second, means the
    /// first action itself; or else, whether the row is to stay open.
    [[nodiscard]] bool meansFirst(double width) const;
    [[nodiscard]] bool staysOpen(double velocity) const;
    /// Lays the buttons out in what the row leaves free of its frame.
    void layOut(CGRect rowFrame) const;
    /// Whether the view is one of the buttons, or lies in one.
    [[nodiscard]] bool has(ui::View view) const { return view.isDescendantOf(panel_); }

private:
    ItemIndex row_;
    RowActions actions_;
    double offset_ = 0;
    objc::Strong<ui::View> panel_;
};

} // namespace desktop
