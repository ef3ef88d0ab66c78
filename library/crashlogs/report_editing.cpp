// The toolbar's buttons, and swiping rows away.
#include "library/crashlogs/report_editing.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/uikit/activity_view_controller.hpp"
#include "bindings/uikit/bar_button_item.hpp"
#include "library/common/alert.hpp"
#include "library/common/animated.hpp"
#include "library/common/bar_items.hpp"
#include "library/common/screens.hpp"

#include <sys/stat.h>

// An active search is a screen of its own above the list: sheets and alerts come from the top.
namespace wentra::crashlogs {
namespace {

using namespace ns::literals;

/// Nil when the file is gone.
ns::Error deleteFile(ns::Url url) {
    constexpr mode_t mayBeDeleted = 0644;
    const ns::String path = url.path();
    chmod(path.utf8().c_str(), mayBeDeleted);
    return ns::FileManager::defaultManager().removeItem(path);
}

} // namespace

void ReportEditing::addToolbar() const {
    const auto button = [this](ns::String symbol, SEL action) {
        return ui::BarButtonItem::withImage(ui::Image::systemNamed(symbol),
                                            ui::BarButtonStyle::plain, self(), action);
    };
    self().setToolbarItems(spread(std::array{
        button(u"checkmark.circle.fill"_ns, objc::selector<"selectAllRows:">()),
        button(u"square.and.arrow.up"_ns, objc::selector<"shareFiles:">()),
        button(u"trash.fill"_ns, objc::selector<"deleteSelectedRows:">()),
    }));
    self().navigationController().setToolbarHidden(true, !animated);
}

void ReportEditing::pick(ns::IndexPath path) const {
    self().navigationController().setToolbarHidden(false, animated);
    self().tableView().selectRow(path, !animated, ui::TableViewScrollPosition::none);
}

void ReportEditing::selectAll(objc::Object /*sender*/) {
    const ui::TableView table = self().tableView();
    for (unsigned long row = 0; row < lists_.count(); ++row) {
        const auto path = ns::IndexPath::forItem(static_cast<long>(row), 0);
        if (isSelectAll_) {
            table.deselectRow(path, !animated);
        } else {
            table.selectRow(path, !animated, ui::TableViewScrollPosition::none);
        }
    }
    isSelectAll_ = !isSelectAll_;
}

std::vector<unsigned long> ReportEditing::picked() const {
    std::vector<unsigned long> rows;
    for (const ns::IndexPath path : self().tableView().indexPathsForSelectedRows()) {
        if (const auto row = static_cast<unsigned long>(path.item()); row < lists_.count()) {
            rows.push_back(row);
        }
    }
    return rows;
}

void ReportEditing::share(objc::Object /*sender*/) {
    const auto files = ns::MutableArray::make();
    for (const unsigned long row : picked()) {
        files.add(lists_.at(row).url);
    }
    if (self().isEditing() && files.count() > 0) {
        presentSheet(ui::ActivityViewController::sharing(files), topViewController());
    }
}

void ReportEditing::deleteSelected(objc::Object /*sender*/) {
    const std::vector<unsigned long> rows = picked();
    for (const unsigned long row : rows) {
        static_cast<void>(deleteFile(lists_.at(row).url));
    }
    lists_.remove(rows);
    self().tableView().reloadData();
}

void ReportEditing::commit(ui::TableView table, ui::TableViewCellEditingStyle style,
                           ns::IndexPath path) {
    const auto row = static_cast<unsigned long>(path.item());
    const unsigned long count = lists_.count();
    if (style != ui::TableViewCellEditingStyle::delete_ || row >= count) {
        return;
    }
    if (const ns::Error error = deleteFile(lists_.at(row).url); error) {
        const std::u16string message = u"删除文件时出错： " + error.localizedDescription().utf16();
        Alert(u"错误"_ns, ns::String::from(message)).action(u"好的"_ns).present();
        return;
    }
    lists_.remove({row});
    showWithout(table, path, count);
}

/// The list may have become another one, whose rows are not those that were left.
void ReportEditing::showWithout(ui::TableView table, ns::IndexPath path,
                                unsigned long formerCount) const {
    if (lists_.count() + 1 != formerCount || lists_.count() == 0) {
        table.reloadData();
        return;
    }
    const auto paths = ns::MutableArray::make();
    paths.add(path);
    table.deleteRows(paths, ui::TableViewRowAnimation::fade);
}

} // namespace wentra::crashlogs
