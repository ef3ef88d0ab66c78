// Moving heights with their rows.
#include "desktop/uikit/lists/row_heights.hpp"

#include <ranges>
#include <utility>

namespace desktop {

std::optional<double> RowHeights::at(ItemIndex row) const {
    const auto found = heights_.find(row);
    return found == heights_.end() ? std::nullopt : std::optional(found->second);
}

void RowHeights::rowsWereInserted(const std::set<ItemIndex>& places) {
    for (const ItemIndex place : places) {
        shift(place, 1);
    }
}

void RowHeights::rowsWereDeleted(const std::set<ItemIndex>& places) {
    for (const ItemIndex place : places | std::views::reverse) {
        heights_.erase(place);
        shift(place, -1);
    }
}

/// Rows of the section from that place on.
void RowHeights::shift(ItemIndex place, long by) {
    std::map<ItemIndex, double> moved;
    for (const auto& [row, height] : heights_) {
        const bool behind = row.section == place.section && row.item >= place.item;
        moved[{row.section, row.item + (behind ? by : 0)}] = height;
    }
    heights_ = std::move(moved);
}

} // namespace desktop
