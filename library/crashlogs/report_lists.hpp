// The entries that the list shows, searches and deletes.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/search_controller.hpp"
#include "library/crashlogs/report_entry.hpp"
#include "library/crashlogs/report_list_controller.hpp"

#include <vector>

namespace wentra::crashlogs {

/// A folder that was walked into is only shown: a search and a deletion go back to the list as it
/// was opened.
class ReportLists : public objc::Part<ReportListController> {
public:
    using Part::Part;
    static ReportLists& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"ipsFiles", &ReportLists::shown_>(),
            objc::property<"ipsFilesMutable", &ReportLists::all_>(),
            objc::property<"ipsFilesOriginal", &ReportLists::searched_>(),
            objc::property<"sortedIpsFiles", &ReportLists::sorted_>(),
            objc::property<"currentURL", &ReportLists::folder_>(),
            objc::method<"updateSearchResultsForSearchController:", &ReportLists::search>(),
            objc::method<"reloadFiles", &ReportLists::readFolder>(),
        };
    }

    /// Before the list is shown.
    void begin();
    [[nodiscard]] unsigned long count() const { return shown_.count(); }
    [[nodiscard]] ReportEntry at(unsigned long row) const {
        return ReportEntry::of(shown_.at(row));
    }
    [[nodiscard]] ns::Array shown() const { return shown_; }
    /// Takes the entries at these rows of the whole list out and shows what is left of it.
    void remove(const std::vector<unsigned long>& rows);
    void walkInto(ns::Url folder);

private:
    void search(ui::SearchController search);
    [[nodiscard]] ns::Array found(ns::String sought) const;
    void readFolder();
    void reload() const { self().tableView().reloadData(); }

    objc::Strong<ns::Array> shown_;
    objc::Strong<ns::MutableArray> all_;
    objc::Strong<ns::Array> searched_;
    objc::Strong<ns::Array> sorted_;
    objc::Strong<ns::Url> folder_;
};

} // namespace wentra::crashlogs
