// Which items of a list are selected.
#pragma once

#include "desktop/uikit/lists/item_index.hpp"

#include <set>

namespace desktop {

/// Plain rules: tells nobody.
class ItemSelection {
public:
    [[nodiscard]] const std::set<ItemIndex>& items() const { return items_; }
    [[nodiscard]] bool contains(ItemIndex index) const { return items_.contains(index); }

    void add(ItemIndex index) { items_.insert(index); }
    void remove(ItemIndex index) { items_.erase(index); }
    void clear() { items_.clear(); }
    template <class Predicate>
    void keepOnly(Predicate predicate) {
        std::erase_if(items_, [&](ItemIndex index) { return !predicate(index); });
    }
    /// What is selected moves with its items; the places of new items are those after the change,
    /// those of deleted ones before it.
    void itemsWereInserted(const std::set<ItemIndex>& places);
    void itemsWereDeleted(const std::set<ItemIndex>& places);

private:
    void shift(ItemIndex place, long by);

    std::set<ItemIndex> items_;
};

} // namespace desktop
