// Deleting and sharing files of the list.
#pragma once

#include "bindings/uikit/navigation_controller.hpp"
#include "library/crashlogs/report_lists.hpp"

namespace wentra::crashlogs {

class ReportEditing : public objc::Part<ReportListController> {
public:
    ReportEditing(ReportListController whole, ReportLists& lists) : Part(whole), lists_(lists) {}
    static ReportEditing& of(objc::Object controller);
    static constexpr auto methods() {
        using Self = ReportEditing;
        return std::array{
            objc::property<"isSelectAll", &Self::isSelectAll_>(),
            objc::method<"selectAllRows:", &Self::selectAll>(),
            objc::method<"shareFiles:", &Self::share>(),
            objc::method<"deleteSelectedRows:", &Self::deleteSelected>(),
            objc::method<"tableView:commitEditingStyle:forRowAtIndexPath:", &Self::commit>(),
        };
    }

    /// Select all, share, delete.
    void addToolbar() const;
    /// A tap while rows are picked.
    void pick(ns::IndexPath path) const;

private:
    void selectAll(objc::Object sender);
    void share(objc::Object sender);
    void deleteSelected(objc::Object sender);
    void commit(ui::TableView table, ui::TableViewCellEditingStyle style, ns::IndexPath path);
    /// The picked rows that have a file.
    [[nodiscard]] std::vector<unsigned long> picked() const;
    void showWithout(ui::TableView table, ns::IndexPath path, unsigned long formerCount) const;

    ReportLists& lists_;
    bool isSelectAll_ = false;
};

} // namespace wentra::crashlogs
