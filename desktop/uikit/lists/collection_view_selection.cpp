// Collection views: what is selected, by the application and by touch, and scrolling to it.
#include "desktop/uikit/lists/collection_view.hpp"
#include "desktop/uikit/scrolling/scroll_rules.hpp"

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

/// Where an item is to lie after scrolling; the platform's bits.
namespace scroll_position {
constexpr unsigned long top = 1U << 0U;
constexpr unsigned long centeredVertically = 1U << 1U;
constexpr unsigned long bottom = 1U << 2U;
constexpr unsigned long left = 1U << 3U;
constexpr unsigned long centeredHorizontally = 1U << 4U;
constexpr unsigned long right = 1U << 5U;
} // namespace scroll_position

} // namespace

void CollectionView::scrollTo(ns::IndexPath path, unsigned long position, bool animated) {
    const auto attributes = attributesAt(path);
    if (!attributes || position == 0) {
        return;
    }
    const auto has = [position](unsigned long bit) { return (position & bit) != 0; };
    const CGRect item = attributes.frame();
    const auto& [former, room] = self().bounds();
    const auto inset = self().send<"adjustedContentInset", UIEdgeInsets>();
    const CGSize content = self().contentSize();
    CGPoint offset = former;
    if (has(scroll_position::top)) {
        offset.y = item.origin.y - inset.top;
    } else if (has(scroll_position::centeredVertically)) {
        offset.y = item.origin.y + (item.size.height - room.height) / 2;
    } else if (has(scroll_position::bottom)) {
        offset.y = item.origin.y + item.size.height - room.height + inset.bottom;
    }
    if (has(scroll_position::left)) {
        offset.x = item.origin.x - inset.left;
    } else if (has(scroll_position::centeredHorizontally)) {
        offset.x = item.origin.x + (item.size.width - room.width) / 2;
    } else if (has(scroll_position::right)) {
        offset.x = item.origin.x + item.size.width - room.width + inset.right;
    }
    const auto x = ScrollRange::of(content.width, room.width, inset.left, inset.right);
    const auto y = ScrollRange::of(content.height, room.height, inset.top, inset.bottom);
    self().send<"setContentOffset:animated:">(CGPoint{x.nearest(offset.x), y.nearest(offset.y)},
                                              animated);
}

ns::Array CollectionView::selectedPaths() const {
    const auto paths = ns::MutableArray::make();
    for (const ItemIndex index : selection_.items()) {
        paths.add(index.path());
    }
    return paths;
}

void CollectionView::select(ItemIndex index) {
    selection_.add(index);
    cells_.at(index).send<"setSelected:">(objc::Boolean(true));
}

void CollectionView::deselect(ItemIndex index) {
    selection_.remove(index);
    cells_.at(index).send<"setSelected:">(objc::Boolean(false));
}

void CollectionView::clearSelection() {
    for (const ItemIndex index : std::set(selection_.items())) {
        deselect(index);
    }
}

void CollectionView::selectionAllowedChanged() {
    if (!allowsSelection_ || (!allowsMultipleSelection_ && selection_.items().size() > 1)) {
        clearSelection();
    }
}

void CollectionView::selectItem(ns::IndexPath path, bool animated, unsigned long position) {
    if (!path) {
        clearSelection();
        return;
    }
    const ItemIndex index = ItemIndex::of(path);
    if (!allowsSelection_ || !exists(index)) {
        return;
    }
    if (!allowsMultipleSelection_ && !selection_.contains(index)) {
        clearSelection();
    }
    select(index);
    scrollTo(path, position, animated);
}

void CollectionView::deselectItem(ns::IndexPath path, bool) {
    if (path) {
        deselect(ItemIndex::of(path));
    }
}

void CollectionView::touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesBegan:withEvent:">(touches, event);
    const auto touch = touches.allObjects().first();
    const auto index = cells_.itemOf(touch.view(), self());
    if (!pressed_.items().empty() || !index || !allowsSelection_ ||
        !may<"collectionView:shouldHighlightItemAtIndexPath:">(*index)) {
        return;
    }
    pressed_.add(*index);
    cellAt(index->path()).send<"setHighlighted:">(objc::Boolean(true));
    tell<"collectionView:didHighlightItemAtIndexPath:">(index->path());
}

/// Ends the highlight, and answers whose it was: the delegate may have changed the items meanwhile.
std::set<ItemIndex> CollectionView::release() {
    for (const ItemIndex index : std::set(pressed_.items())) {
        cells_.at(index).send<"setHighlighted:">(objc::Boolean(false));
        tell<"collectionView:didUnhighlightItemAtIndexPath:">(index.path());
    }
    return std::exchange(pressed_, {}).items();
}

void CollectionView::touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesEnded:withEvent:">(touches, event);
    const auto touch = touches.allObjects().first().assume<ui::Touch>();
    for (const ItemIndex index : release()) {
        const auto cell = cells_.at(index);
        if (cell && cell.pointInside(touch.locationIn(cell), event)) {
            selectByTouch(index);
        }
    }
}

void CollectionView::touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesCancelled:withEvent:">(touches, event);
    release();
}

void CollectionView::selectByTouch(ItemIndex index) {
    if (allowsMultipleSelection_ && selection_.contains(index)) {
        if (may<"collectionView:shouldDeselectItemAtIndexPath:">(index)) {
            deselect(index);
            tell<"collectionView:didDeselectItemAtIndexPath:">(index.path());
        }
        return;
    }
    if (!may<"collectionView:shouldSelectItemAtIndexPath:">(index)) {
        return;
    }
    if (!allowsMultipleSelection_) {
        for (const ItemIndex former : std::set(selection_.items())) {
            if (former != index) {
                deselect(former);
                tell<"collectionView:didDeselectItemAtIndexPath:">(former.path());
            }
        }
    }
    select(index);
    tell<"collectionView:didSelectItemAtIndexPath:">(index.path());
}

} // namespace desktop
