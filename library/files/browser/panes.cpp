// Reading and sorting the panes, and walking up.
#include "library/files/browser/panes.hpp"

#include "bindings/objc/pool.hpp"
#include "library/common/haptic.hpp"
#include "library/files/file_path.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {

std::string pathOf(ns::String text) { return pathOfText(text.utf16()); }

ns::String textOf(std::string_view path) { return ns::String::from(textOfPath(path)); }

ns::MutableArray arrayOf(const Names& names) {
    const auto array = ns::MutableArray::make();
    const objc::Pool pool; // a folder may hold very many
    for (const std::string& name : names) {
        array.add(textOf(name));
    }
    return array;
}

Names namesIn(ns::Array array) {
    Names names;
    for (const objc::Object element : array) {
        if (const auto name = element.as<ns::String>(); name) {
            names.push_back(pathOf(name));
        }
    }
    return names;
}

void Panes::setTables(ui::TableView left, ui::TableView right) {
    tableView1_ = left;
    tableView2_ = right;
}

std::string Panes::folder(ui::TableView table) const {
    return pathOf(isLeft(table) ? path1_ : path2_);
}

void Panes::setFolder(ui::TableView table, const std::string& path) {
    (isLeft(table) ? path1_ : path2_) = textOf(path);
}

ns::MutableArray Panes::content(ui::TableView table) const {
    return isLeft(table) ? content1_ : content2_;
}

void Panes::setContent(ui::TableView table, const Names& names) {
    (isLeft(table) ? content1_ : content2_) = arrayOf(names);
}

std::vector<std::string> Panes::entries(ui::TableView table) const {
    std::vector<std::string> paths = namesIn(content(table));
    for (std::string& path : paths) {
        path = joined(folder(table), path);
    }
    return paths;
}

std::optional<std::string> Panes::name(ui::TableView table, ns::IndexPath row) const {
    const auto index = static_cast<unsigned long>(row.item());
    if (!row || index >= content(table).count()) {
        return std::nullopt;
    }
    return pathOf(content(table).at(index).as<ns::String>());
}

std::optional<std::string> Panes::entry(ui::TableView table, ns::IndexPath row) const {
    const auto found = name(table, row);
    return found ? std::optional(joined(folder(table), *found)) : std::nullopt;
}

void Panes::touch(ui::TableView table, const std::string& path) {
    lastTouched_ = table;
    currentPath_ = textOf(path);
}

ns::MutableArray Panes::sortByDate(ns::Array names, ns::String folder) const {
    return arrayOf(sortedByDate(namesIn(names), pathOf(folder), Order::descending));
}

void Panes::read(ui::TableView table) { setContent(table, listing(folder(table))); }

void Panes::reloadPane(ui::TableView table) {
    read(table);
    (isLeft(table) ? left() : right()).reloadData();
}

void Panes::reload() {
    reloadPane(left());
    reloadPane(right());
}

void Panes::sortAll(Sort sort) {
    isAscending_ = !isAscending_;
    const Order order = isAscending_ ? Order::ascending : Order::descending;
    for (const ui::TableView table : {left(), right()}) {
        setContent(table, sort(namesIn(content(table)), folder(table), order));
    }
    doubleHapticTap();
    left().reloadData();
    right().reloadData();
}

void Panes::removeRow(ns::IndexPath row, ui::TableView table, ns::MutableArray listing) {
    const auto index = static_cast<unsigned long>(row.item());
    if (listing != content(table) || index >= listing.count()) {
        reloadPane(table);
        return;
    }
    listing.removeAt(index);
    const auto rows = ns::MutableArray::make();
    rows.add(row);
    table.deleteRows(rows, ui::TableViewRowAnimation::automatic);
}

void Panes::goUp(ui::TableView table) { setFolder(table, std::string(parentOf(folder(table)))); }

void Panes::goBack(objc::Object /*sender*/) {
    const objc::Strong<ui::TableView> touched = lastTouched_.strong();
    if (touched && entryExists(std::string(parentOf(folder(touched))))) {
        goUp(touched);
    }
    reload();
}

long Panes::numberOfRows(ui::TableView table, long /*section*/) const {
    return static_cast<long>(content(table).count());
}

} // namespace wentra::files
