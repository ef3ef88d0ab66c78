// Moving a selection with its items.
#include "desktop/uikit/lists/item_selection.hpp"

#include <algorithm>
#include <ranges>
#include <utility>

namespace desktop {

void ItemSelection::itemsWereInserted(const std::set<ItemIndex>& places) {
    for (const ItemIndex place : places) {
        shift(place, 1);
    }
}

void ItemSelection::itemsWereDeleted(const std::set<ItemIndex>& places) {
    for (const ItemIndex place : places | std::views::reverse) {
        items_.erase(place);
        shift(place, -1);
    }
}

/// Items of the section from that place on.
void ItemSelection::shift(ItemIndex place, long by) {
    std::set<ItemIndex> moved;
    for (const ItemIndex index : items_) {
        const bool behind = index.section == place.section && index.item >= place.item;
        moved.insert({index.section, index.item + (behind ? by : 0)});
    }
    items_ = std::move(moved);
}

} // namespace desktop
