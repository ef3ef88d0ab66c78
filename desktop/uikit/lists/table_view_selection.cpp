// Tables: what is selected, by the application and by touch.
#include "desktop/uikit/lists/table_view.hpp"

#include "bindings/uikit/table_view_cell.hpp"

#include <utility>

namespace desktop {

ns::IndexPath TableView::selectedPath() const {
    return selection_.items().empty() ? ns::IndexPath() : selection_.items().begin()->path();
}

ns::Array TableView::selectedPaths() const {
    if (selection_.items().empty()) {
        return nullptr; // as on the phone, unlike a collection view's
    }
    const auto paths = ns::MutableArray::make();
    for (const ItemIndex index : selection_.items()) {
        paths.add(index.path());
    }
    return paths;
}

void TableView::mark(ItemIndex index, bool selected) {
    cells_.at(index).send<"setSelected:animated:">(objc::Boolean(selected), objc::Boolean(false));
}

void TableView::selectRow(ns::IndexPath path, bool animated, long position) {
    const bool keepsOthers = picksSeveral() && path;
    if (!keepsOthers) {
        for (const ItemIndex former : std::set(selection_.items())) {
            selection_.remove(former);
            mark(former, false);
        }
    }
    if (!path || rectForRow(path) == CGRect()) {
        return;
    }
    selection_.add(ItemIndex::of(path));
    mark(ItemIndex::of(path), true);
    if (position != 0) {
        scrollTo(path, position, animated);
    }
}

void TableView::deselectRow(ns::IndexPath path, bool) {
    if (path) {
        selection_.remove(ItemIndex::of(path));
        mark(ItemIndex::of(path), false);
    }
}

void TableView::touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesBegan:withEvent:">(touches, event);
    if (swipe_) {
        closeSwipe(); // which is all that this touch does
        return;
    }
    const auto touch = touches.allObjects().first();
    const auto index = cells_.itemOf(touch.view(), self());
    const objc::Object asked = delegate();
    if (!pressed_.items().empty() || !index || !takesTaps() ||
        (answers<"tableView:shouldHighlightRowAtIndexPath:">(asked) &&
         !asked.send<"tableView:shouldHighlightRowAtIndexPath:", bool>(self(), index->path()))) {
        return;
    }
    pressed_.add(*index);
    cells_.at(*index).send<"setHighlighted:animated:">(objc::Boolean(true), objc::Boolean(false));
    tell<"tableView:didHighlightRowAtIndexPath:">(index->path());
}

/// Ends the highlight, and answers whose it was: the delegate may have changed the rows meanwhile.
std::set<ItemIndex> TableView::release() {
    for (const ItemIndex index : std::set(pressed_.items())) {
        cells_.at(index).send<"setHighlighted:animated:">(objc::Boolean(false),
                                                          objc::Boolean(false));
        tell<"tableView:didUnhighlightRowAtIndexPath:">(index.path());
    }
    return std::exchange(pressed_, {}).items();
}

void TableView::touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesEnded:withEvent:">(touches, event);
    const auto touch = touches.allObjects().first().assume<ui::Touch>();
    for (const ItemIndex index : release()) {
        const ui::TableViewCell cell = cells_.at(index);
        if (cell && cell.pointInside(touch.locationIn(cell), event)) {
            selectByTouch(index);
        }
    }
}

void TableView::touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesCancelled:withEvent:">(touches, event);
    release();
}

void TableView::deselectByTouch(ItemIndex index) {
    selection_.remove(index);
    mark(index, false);
    tell<"tableView:didDeselectRowAtIndexPath:">(index.path());
}

void TableView::selectByTouch(ItemIndex index) {
    if (picksSeveral() && selection_.contains(index)) {
        deselectByTouch(index);
        return;
    }
    ns::IndexPath path = index.path();
    if (const objc::Object asked = delegate();
        answers<"tableView:willSelectRowAtIndexPath:">(asked)) {
        path = asked.send<"tableView:willSelectRowAtIndexPath:", ns::IndexPath>(self(), path);
    }
    if (!path) {
        return;
    }
    const ItemIndex chosen = ItemIndex::of(path); // the delegate may have chosen another row
    for (const ItemIndex former : std::set(selection_.items())) {
        if (!picksSeveral() && former != chosen) {
            deselectByTouch(former);
        }
    }
    selection_.add(chosen);
    mark(chosen, true);
    tell<"tableView:didSelectRowAtIndexPath:">(path);
}

} // namespace desktop
