// The copied texts of the list: recording, filtering and sorting them.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/notification.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/table_view.hpp"
#include "library/clipboard/clipboard_table_view_controller.hpp"
#include "library/clipboard/record_filters.hpp"

namespace wentra::clipboard {

class History : public objc::Part<ClipboardTableViewController> {
public:
    using Part::Part;
    static History& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"tableView", &History::table_>(),
            objc::property<"clipboardContents", &History::all_>(),
            objc::property<"filteredContents", &History::shown_>(),
            objc::property<"sortingAscend", &History::ascending_>(),
            objc::property<"filteringLinks", &History::links_>(),
            objc::property<"filteringNumbers", &History::numbers_>(),
            objc::property<"filteringLetters", &History::letters_>(),
            objc::method<"pasteboardChanged:", &History::pasteboardChanged>(),
            objc::method<"loadContents", &History::load>(),
            objc::method<"getCurrentDateTimeString", &History::now>(),
            objc::method<"sortButtonTapped:", &History::sort>(),
            objc::method<"filterLinkButtonTapped:", &History::toggle<&History::links_>>(),
            objc::method<"filterNumberButtonTapped:", &History::toggle<&History::numbers_>>(),
            objc::method<"filterLetterButtonTapped:", &History::toggle<&History::letters_>>(),
            objc::method<"updateFilteredContents", &History::filter>(),
        };
    }

    /// Shows what is stored in the table, records what is on the pasteboard, and follows it from
    /// then on.
    void begin(ui::TableView table);

    [[nodiscard]] unsigned long count() const { return shown_.count(); }
    /// What is shown in that row; nil when there is no such row.
    [[nodiscard]] ns::Dictionary at(long row) const;
    /// Takes the row off what is shown and stores what is left of it; the texts that the filters
    /// hold back are gone from the file, too. False when there is no such row.
    bool remove(long row);

private:
    void pasteboardChanged(ns::Notification notification);
    void record(ns::String content);
    void load();
    [[nodiscard]] ns::String now() const;
    void sort(ui::BarButtonItem button);
    template <bool History::*Filter>
    void toggle(ui::BarButtonItem) {
        this->*Filter = !(this->*Filter);
        filter();
        table_.reloadData();
    }
    void filter();

    objc::Strong<ui::TableView> table_;
    objc::Strong<ns::MutableArray> all_;   // oldest first
    objc::Strong<ns::MutableArray> shown_; // those that pass the filters
    bool ascending_ = false;
    bool links_ = false;
    bool numbers_ = false;
    bool letters_ = false;
};

} // namespace wentra::clipboard
