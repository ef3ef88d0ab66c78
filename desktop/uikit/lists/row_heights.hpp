// How tall the rows of a table have turned out to be.
#pragma once

#include "desktop/uikit/lists/item_index.hpp"

#include <map>
#include <optional>
#include <set>

namespace desktop {

/// Plain rules, in points.
class RowHeights {
public:
    /// Nothing for a row that has not been measured.
    [[nodiscard]] std::optional<double> at(ItemIndex row) const;
    void set(ItemIndex row, double height) { heights_[row] = height; }
    void clear() { heights_.clear(); }
    /// Heights move with their rows; the places of new rows are those after the change, those of
    /// deleted ones before it.
    void rowsWereInserted(const std::set<ItemIndex>& places);
    void rowsWereDeleted(const std::set<ItemIndex>& places);

private:
    void shift(ItemIndex place, long by);

    std::map<ItemIndex, double> heights_;
};

} // namespace desktop
