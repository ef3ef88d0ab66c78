// Removes entries and their rows.
#include "library/files/browser/deleting.hpp"

#include "bindings/uikit/contextual_action.hpp"
#include "library/common/alert.hpp"
#include "library/files/file_path.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;
using ui::AlertActionStyle::cancel;
using ui::AlertActionStyle::destructive;

constexpr const char* recycleFolder = "/var/mobile/huishou";

/// The entry of a row of a listing, which others may have handed over.
std::optional<std::string> entryOf(ns::IndexPath row, ns::Array listing, ns::String folder) {
    const auto index = static_cast<unsigned long>(row.item());
    if (!row || index >= listing.count()) {
        return std::nullopt;
    }
    const std::string name = pathOf(listing.at(index).as<ns::String>());
    const bool isEntry = !name.empty() && name != "." && name != "..";
    return isEntry ? std::optional(joined(pathOf(folder), name)) : std::nullopt;
}

/// An action of a swiped row, which sends its message and is done.
template <objc::Literal Message>
ui::ContextualAction rowAction(UmaCollectionViewController whole, ui::ContextualActionStyle style,
                               ns::String title, ui::TableView table, ns::IndexPath row,
                               ns::MutableArray listing, ns::String folder) {
    return ui::ContextualAction::with(
        style, title,
        ui::ContextualAction::Handler::from(
            [whole = objc::Strong(whole), table = objc::Strong(table), row = objc::Strong(row),
             listing = objc::Strong(listing), folder = objc::Strong(folder)](
                ui::ContextualAction, ui::View, ui::ContextualAction::Completion completion) {
                whole.template send<Message>(
                    static_cast<ns::IndexPath>(row), static_cast<ui::TableView>(table),
                    static_cast<ns::MutableArray>(listing), static_cast<ns::String>(folder));
                if (completion) {
                    completion(true);
                }
            }));
}

} // namespace

void Deleting::askAboutAll(ui::TableView table) {
    const std::u16string folder = textOfPath(panes_.folder(table));
    const auto removeShown = [this, table = objc::Strong(table), entries = panes_.entries(table),
                              whole = objc::Strong(self())] { removeAll(table, entries); };
    Alert(u"警告"_ns, ns::String::from(u"\"确定删除\" " + folder + u" \"路径下所有内容？\""))
        .action(u"确定删除"_ns, destructive, removeShown)
        .action(u"取消操作"_ns, cancel)
        .presentFrom(self());
}

void Deleting::removeAll(ui::TableView table, const std::vector<std::string>& entries) {
    for (const std::string& entry : entries) {
        static_cast<void>(removeItem(entry)); // what is left is shown
    }
    panes_.reloadPane(table);
}

void Deleting::ask(ui::TableView table, ns::IndexPath row) {
    const auto path = panes_.entry(table, row);
    if (!path) {
        return;
    }
    const auto remove = [this, path = *path, row = objc::Strong(row), table = objc::Strong(table),
                         listing = objc::Strong(panes_.content(table)),
                         whole = objc::Strong(self())] {
        static_cast<void>(removeItem(path));
        panes_.removeRow(row, table, listing);
    };
    Alert(u"确定删除"_ns, ns::String::from(u"确定删除文件：" + textOfPath(*path)))
        .action(u"确定删除"_ns, destructive, remove)
        .action(u"取消操作"_ns, cancel)
        .presentFrom(self());
}

void Deleting::remove(ns::IndexPath row, ui::TableView table, ns::MutableArray listing,
                      ns::String folder) {
    if (const auto path = entryOf(row, listing, folder); path) {
        static_cast<void>(removeItem(*path));
        panes_.removeRow(row, table, listing);
    }
}

void Deleting::recycle(ns::IndexPath row, ui::TableView table, ns::MutableArray listing,
                       ns::String folder) {
    static_cast<void>(makeFolder(recycleFolder)); // it may be there
    const auto path = entryOf(row, listing, folder);
    if (path && moveItem(*path, joined(recycleFolder, lastComponent(*path))) == 0) {
        panes_.removeRow(row, table, listing);
    }
}

ui::SwipeActionsConfiguration Deleting::swipeActions(ui::TableView table, ns::IndexPath row) {
    const ns::MutableArray listing = panes_.content(table);
    const ns::String folder = textOf(panes_.folder(table));
    const auto actions = ns::MutableArray::make();
    actions.add(rowAction<"deleteAtIndex:tableView:contentArray:path:">(
        self(), ui::ContextualActionStyle::destructive, u"删除"_ns, table, row, listing, folder));
    actions.add(rowAction<"moveToRecycleBinAtIndex:tableView:contentArray:path:">(
        self(), ui::ContextualActionStyle::normal, u"回收站"_ns, table, row, listing, folder));
    return ui::SwipeActionsConfiguration::with(actions);
}

} // namespace wentra::files
