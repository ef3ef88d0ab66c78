// Tables: picking several rows while they are edited.
#include "desktop/uikit/lists/table_view.hpp"

#include <set>

namespace desktop {

void TableView::setEditing(bool editing) {
    self().send<"setEditing:animated:">(objc::Boolean(editing), objc::Boolean(false));
}

/// Nothing is picked at either end.
void TableView::setEditingAnimated(bool editing, bool) {
    if (editing == editing_) {
        return;
    }
    for (const ItemIndex former : std::set(selection_.items())) {
        selection_.remove(former);
        mark(former, false);
    }
    editing_ = editing;
    editingChanged();
}

void TableView::editingChanged() {
    for (const auto& [index, cell] : cells_.shown()) {
        showEditing(cell);
    }
}

void TableView::showEditing(ui::TableViewCell cell) const {
    TableViewCell::of(cell).setPicking(editing_ && allowsMultipleDuringEditing_);
    cell.send<"setEditing:animated:">(objc::Boolean(editing_), objc::Boolean(false));
}

bool TableView::picksSeveral() const {
    return editing_ ? allowsMultipleDuringEditing_ : allowsMultipleSelection_;
}

bool TableView::takesTaps() const {
    return editing_ ? allowsMultipleDuringEditing_ || allowsSelectionDuringEditing_
                    : allowsSelection_;
}

} // namespace desktop
