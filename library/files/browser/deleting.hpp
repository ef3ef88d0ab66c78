// Deleting entries, and moving them to the recycle folder.
#pragma once

#include "bindings/uikit/swipe_actions_configuration.hpp"
#include "library/files/browser/panes.hpp"

namespace wentra::files {

class Deleting : public objc::Part<UmaCollectionViewController> {
public:
    Deleting(UmaCollectionViewController whole, Panes& panes) : Part(whole), panes_(panes) {}
    static Deleting& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"selectAndDeleteAllItemsInTableView:", &Deleting::askAboutAll>(),
            objc::method<"deleteAtIndex:tableView:contentArray:path:", &Deleting::remove>(),
            objc::method<"moveToRecycleBinAtIndex:tableView:contentArray:path:",
                         &Deleting::recycle>(),
            objc::method<"tableView:trailingSwipeActionsConfigurationForRowAtIndexPath:",
                         &Deleting::swipeActions>(),
        };
    }

    void askAboutAll(ui::TableView table);
    /// Nothing for a row that is not there.
    void ask(ui::TableView table, ns::IndexPath row);

private:
    void removeAll(ui::TableView table, const std::vector<std::string>& entries);
    void remove(ns::IndexPath row, ui::TableView table, ns::MutableArray listing,
                ns::String folder);
    void recycle(ns::IndexPath row, ui::TableView table, ns::MutableArray listing,
                 ns::String folder);
    [[nodiscard]] ui::SwipeActionsConfiguration swipeActions(ui::TableView table,
                                                             ns::IndexPath row);

    Panes& panes_;
};

} // namespace wentra::files
