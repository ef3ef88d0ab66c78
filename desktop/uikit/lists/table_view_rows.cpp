// Tables: the cells of the rows that are seen, and how tall they are.
#include "desktop/uikit/lists/table_view.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/uikit/scrolling/scroll_view.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

/// The delegate's, or the table's; a negative one is for as much as the cell needs.
double TableView::declaredHeight(ItemIndex index) const {
    const objc::Object asked = delegate();
    return answers<"tableView:heightForRowAtIndexPath:">(asked)
               ? asked.send<"tableView:heightForRowAtIndexPath:", double>(self(), index.path())
               : rowHeight_;
}

/// Estimated for a row that has to be seen to be measured.
double TableView::heightOf(ItemIndex index) const {
    constexpr double standardHeight = 44;
    if (const double declared = declaredHeight(index); declared >= 0) {
        return declared;
    }
    return heights_.at(index).value_or(estimatedRowHeight_ > 0 ? estimatedRowHeight_
                                                               : standardHeight);
}

/// Measures a row that has come up; whether it is not as tall as was thought.
bool TableView::fit(ItemIndex index, ui::TableViewCell cell) {
    if (declaredHeight(index) >= 0) {
        return false;
    }
    constexpr double nothing = 1e-3;
    const double height = TableViewCell::of(cell).fittingHeight(self().bounds().size.width);
    heights_.set(index, height);
    return placement_.contains(index) && std::abs(height - frameOf(index).size.height) > nothing;
}

/// Rows that are measured may bring others up, or move them out of sight.
void TableView::showVisibleCells() {
    const objc::Pool pool;
    for (;;) {
        const auto& shown = cells_.shown();
        const auto anchor = shown.empty() ? std::nullopt : std::optional(shown.begin()->first);
        const double top = anchor && placement_.contains(*anchor) ? frameOf(*anchor).origin.y : 0;
        if (!showWantedCells()) {
            break;
        }
        measureAnew(anchor, top);
    }
    if (swipe_) {
        placeSwiped();
    }
}

/// What was seen before stays where it is seen.
void TableView::measureAnew(std::optional<ItemIndex> anchor, double formerTop) {
    isPrepared_ = false;
    prepare();
    if (anchor && placement_.contains(*anchor)) {
        if (const double down = frameOf(*anchor).origin.y - formerTop; down != 0) {
            ScrollView::of(self()).contentMoved(down);
        }
    }
}

/// Makes the cells of what is seen; whether one of them is of another height than was thought.
bool TableView::showWantedCells() {
    CGRect seen = self().bounds();
    seen.origin.y -= heightBefore();
    const std::vector<ItemIndex> wanted = placement_.itemsIn(seen);
    const auto shown = cells_.shown(); // a copy: it is changed
    for (const auto& [index, cell] : shown) {
        if (!std::ranges::binary_search(wanted, index)) {
            putAway(index);
        }
    }
    bool differs = false;
    for (const ItemIndex index : wanted) {
        differs = (!cells_.at(index) && showNewCell(index)) || differs;
        placeCell(index);
    }
    return differs;
}

/// Asks the data source for the row's cell; whether that is of another height than was thought.
bool TableView::showNewCell(ItemIndex index) {
    const auto cell = dataSource().send<"tableView:cellForRowAtIndexPath:", ui::TableViewCell>(
        self(), index.path());
    if (!cell || !placement_.contains(index)) {
        return false; // the source knows of fewer rows by now
    }
    cells_.show(index, cell);
    mark(index, selection_.contains(index));
    showEditing(cell);
    self().insertSubview(cell, 0);
    tell<"tableView:willDisplayCell:forRowAtIndexPath:">(cell, index.path());
    return fit(index, cell);
}

/// Nothing for a row without a cell, and for one that the delegate has taken away.
void TableView::placeCell(ItemIndex index) {
    const ui::TableViewCell cell = cells_.at(index);
    if (!cell || !placement_.contains(index)) {
        return;
    }
    cell.setFrame(frameOf(index));
    TableViewCell::of(cell).setSeparator(
        separatorStyle_ == 0 ? ui::Color::clear() : static_cast<ui::Color>(separatorColor_),
        separatorInset_.left);
}

} // namespace desktop
