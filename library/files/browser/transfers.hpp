// Copying and moving an entry to the opposite pane, and renaming it.
#pragma once

#include "library/files/browser/panes.hpp"

namespace wentra::files {

/// Each asks first, in an alert; nothing for a row that is not there.
class Transfers {
public:
    Transfers(UmaCollectionViewController whole, Panes& panes) : whole_(whole), panes_(panes) {}

    void copy(ui::TableView table, ns::IndexPath row);
    void move(ui::TableView table, ns::IndexPath row);
    void rename(ui::TableView table, ns::IndexPath row);

private:
    void moveAcross(const std::string& source, const std::string& destination);
    void moveOver(const std::string& source, const std::string& destination);

    UmaCollectionViewController whole_;
    Panes& panes_;
};

} // namespace wentra::files
