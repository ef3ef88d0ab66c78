// The two panes: which folder each shows, and its entries in the order of the rows.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/index_path.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/objc/weak.hpp"
#include "bindings/uikit/table_view.hpp"
#include "library/files/browser/browser.hpp"
#include "library/files/listing.hpp"

namespace wentra::files {

/// The path of a text that names one, and the text of a path.
[[nodiscard]] std::string pathOf(ns::String text);
[[nodiscard]] ns::String textOf(std::string_view path);
/// The names as an array of strings.
[[nodiscard]] ns::MutableArray arrayOf(const Names& names);
/// The names in an array; what is no string is left out.
[[nodiscard]] Names namesIn(ns::Array array);

/// Every operation takes the table that it acts on: the left one, or else the right one.
class Panes : public objc::Part<UmaCollectionViewController> {
public:
    using Part::Part;
    static Panes& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"path1", &Panes::path1_>(),
            objc::property<"path2", &Panes::path2_>(),
            objc::property<"content1", &Panes::content1_>(),
            objc::property<"content2", &Panes::content2_>(),
            objc::property<"tableView1", &Panes::tableView1_>(),
            objc::property<"tableView2", &Panes::tableView2_>(),
            objc::property<"lastTouchedTableView", &Panes::lastTouched_>(),
            objc::property<"currentPath", &Panes::currentPath_>(),
            objc::property<"isAscendingSort", &Panes::isAscending_>(),
            objc::method<"sortFilesByDate:path:", &Panes::sortByDate>(),
            objc::method<"reloadData", &Panes::reload>(),
            objc::method<"reloadDataForTableView:", &Panes::reloadPane>(),
            objc::method<"reloadDataForTableView1:", &Panes::reloadOther>(),
            objc::method<"selectAllLeftButtonTapped", &Panes::sortAllByDate>(),
            objc::method<"selectAllRightButtonTapped", &Panes::sortAllBySize>(),
            objc::method<"backButtonPressed:", &Panes::goBack>(),
            objc::method<"tableView:numberOfRowsInSection:", &Panes::numberOfRows>(),
        };
    }

    [[nodiscard]] ui::TableView left() const { return tableView1_; }
    [[nodiscard]] ui::TableView right() const { return tableView2_; }
    void setTables(ui::TableView left, ui::TableView right);

    [[nodiscard]] bool isLeft(ui::TableView table) const { return table == left(); }
    [[nodiscard]] ui::TableView opposite(ui::TableView table) const {
        return isLeft(table) ? right() : left();
    }
    /// The folder of the table's pane.
    [[nodiscard]] std::string folder(ui::TableView table) const;
    void setFolder(ui::TableView table, const std::string& path);
    [[nodiscard]] ns::MutableArray content(ui::TableView table) const;
    /// The paths of the pane's entries in the order of its rows.
    [[nodiscard]] std::vector<std::string> entries(ui::TableView table) const;
    /// The entry's name; nothing for a row that is not there.
    [[nodiscard]] std::optional<std::string> name(ui::TableView table, ns::IndexPath row) const;
    [[nodiscard]] std::optional<std::string> entry(ui::TableView table, ns::IndexPath row) const;

    /// Remembers the row that was tapped last.
    void touch(ui::TableView table, const std::string& path);
    [[nodiscard]] std::string current() const { return pathOf(currentPath_); }
    /// Shows the parent of the pane's folder.
    void goUp(ui::TableView table);

    void read(ui::TableView table);
    void reload();
    void reloadPane(ui::TableView table);
    void reloadOther(ui::TableView table) { reloadPane(opposite(table)); }
    /// Takes the row away, whose entry is gone. A listing that was read meanwhile is read again.
    void removeRow(ns::IndexPath row, ui::TableView table, ns::MutableArray listing);

private:
    using Sort = Names (*)(const Names&, const std::string&, Order);

    [[nodiscard]] ns::MutableArray sortByDate(ns::Array names, ns::String folder) const;
    void sortAllByDate() { sortAll(&sortedByDate); }
    void sortAllBySize() { sortAll(&sortedBySize); }
    void sortAll(Sort sort);
    void setContent(ui::TableView table, const Names& names);
    void goBack(objc::Object sender);
    [[nodiscard]] long numberOfRows(ui::TableView table, long section) const;

    objc::Copied<ns::String> path1_;
    objc::Copied<ns::String> path2_;
    objc::Strong<ns::MutableArray> content1_;
    objc::Strong<ns::MutableArray> content2_;
    objc::Strong<ui::TableView> tableView1_;
    objc::Strong<ui::TableView> tableView2_;
    objc::Weak<ui::TableView> lastTouched_;
    objc::Copied<ns::String> currentPath_;
    bool isAscending_ = false;
};

} // namespace wentra::files
