// Puts flexible spaces in between.
#include "library/common/bar_items.hpp"

namespace wentra {

ns::Array spread(std::span<const ui::BarButtonItem> items) {
    const auto all = ns::MutableArray::make();
    for (const ui::BarButtonItem item : items) {
        if (all.count() > 0) {
            all.add(ui::BarButtonItem::withSystemItem(ui::BarButtonSystemItem::flexibleSpace,
                                                      nullptr, nullptr));
        }
        all.add(item);
    }
    return all;
}

} // namespace wentra
